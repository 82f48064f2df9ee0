#pragma once

#include "application/HotKeyFile.h"

#include <QStringList>
#include <QWidget>

#include <map>
#include <memory>

class LevelWid;
struct HotKeyTree;

namespace Ui {
class AppHotKeysUi;
}

/// A top-level folder of the catalog, an application: a title over its second-level folders. Starts
/// folded.
class AppHotKeysWid : public QWidget
{
    Q_OBJECT

public:
    /// `strTitle` is the folder's name as spelled.
    AppHotKeysWid(HotKeyTree &tree, const QString &strTitle, QWidget *parent);
    ~AppHotKeysWid() override;

    /// Adds a title for each folder, in order and in portions.
    void addSecondLevels(const QStringList &lsSecondLev);
    /// Adds a file to a folder, after all that was added before; dropped if there is no folder of
    /// exactly that name.
    void addHotKeys(const QString &strSecondLev, const QString &strThirdLev, HotKeyMap mHotKeys);

signals:
    void sigVantrixKeySelected();
    void sigSearch(QString strText);

private slots:
    void slotTitleClicked();

private:
    void addSecondLevel(const QString &strSecondLev);

    std::unique_ptr<Ui::AppHotKeysUi> m_ui;
    HotKeyTree &m_tree;
    std::map<QString, LevelWid *> m_mLevels;
};
