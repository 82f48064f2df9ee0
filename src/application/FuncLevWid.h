#pragma once

#include "application/HotKeyFile.h"

#include <QWidget>

#include <memory>

class HotKeysWid;
struct HotKeyTree;

namespace Ui {
class FuncLevUi;
}

/// A file of the catalog: a title over its groups. Starts folded.
class FuncLevWid : public QWidget
{
    Q_OBJECT

public:
    /// `strTitle` is the file's name up to its first ".", in upper case.
    FuncLevWid(HotKeyTree &tree, const QString &strTitle, QWidget *parent);
    ~FuncLevWid() override;

    /// Adds groups and leaves for a millisecond or so, in order, and takes them out of `mHotKeys`;
    /// true when nothing is left.
    bool addSome(HotKeyMap &mHotKeys);

signals:
    void sigVantrixKeySelected();
    void sigSearch(QString strText);

private slots:
    void slotTitleClicked();

private:
    HotKeysWid *addGroup(const QString &strTitle);

    std::unique_ptr<Ui::FuncLevUi> m_ui;
    HotKeyTree &m_tree;
    HotKeysWid *m_filling = nullptr; ///< the group that gets leaves at present
};
