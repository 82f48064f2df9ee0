#pragma once

#include "application/HotKeyFile.h"

#include <QWidget>

#include <memory>

class FuncLevWid;
struct HotKeyTree;

namespace Ui {
class LevelUi;
}

/// A second-level folder of the catalog: a title over its files, which stand in the order in which
/// they came. Starts folded.
class LevelWid : public QWidget
{
    Q_OBJECT

public:
    /// `strTitle` is the folder's name as spelled.
    LevelWid(HotKeyTree &tree, const QString &strTitle, QWidget *parent);
    ~LevelWid() override;

    /// Adds a file, in portions; it appears when it is complete.
    void addFuncLevel(const QString &strThirdLev, HotKeyMap mHotKeys);

signals:
    void sigVantrixKeySelected();
    void sigSearch(QString strText);

private slots:
    void slotTitleClicked();

private:
    FuncLevWid *makeFuncLevel(const QString &strThirdLev);

    std::unique_ptr<Ui::LevelUi> m_ui;
    HotKeyTree &m_tree;
};
