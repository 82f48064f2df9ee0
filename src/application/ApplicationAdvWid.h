#pragma once

#include "application/HotKeyTree.h"
#include "application/ReadHotKeysThr.h"

#include <QWidget>

#include <map>
#include <memory>

class AppHotKeysWid;
class ButtonGroupEx;
class QAbstractButton;

namespace Ui {
class ApplicationAdvUi;
}

/// The hot-key browser: the catalog as a tree of folding titles (application, folder, file, group)
/// with a button for each hot key. It reads the catalog once, in the background, from its creation
/// on, and grows in portions, so that it can be used meanwhile; nothing ever leaves it. A folder
/// whose name is not all in upper case stays empty. Beyond 100,000 hot keys or 12,000 titles the
/// catalog is cut off, and a group beyond 10,000 hot keys is.
///
/// At most one hot key of the whole tree is checked, and it stays checked until another one is
/// picked: the page does not show which hot key a key holds. Safe to destroy at any moment.
class VANTRIX_EXPORT ApplicationAdvWid : public QWidget
{
    Q_OBJECT

public:
    explicit ApplicationAdvWid(QWidget *parent = nullptr);
    ~ApplicationAdvWid() override;

signals:
    /// The user picked a hot key: its text and its name, as the catalog spells them, in upper case.
    /// Two empty texts if the user unchecked it, which means that the key is to be cleared.
    void sigAppHotKeyChanged(QString strHotKey, QString strKeyName);
    /// Emitted by the dialog: another key was selected. Changes nothing here.
    void sigVantrixKeySelected();
    /// Emitted by the dialog: shows of all hot keys those whose shown text starts with `strText`,
    /// ignoring case. Titles stay, folded or not.
    void sigSearch(QString strText);

protected:
    /// Tab goes through titles and hot keys as they are read, however they arrived.
    bool focusNextPrevChild(bool next) override;

private slots:
    void slotKeyClicked(QAbstractButton *button);
    void slotAddTopLevel(QString strTopLev);
    void slotAddSecondLev(QString strTopLev, QStringList lsSecondLev);
    void slotAddHotKeys(QString strTopLev, QString strSecondLev, QString strThirdLev,
                        std::map<QString, std::map<QString, QString>> mHotKeys);

private:
    std::unique_ptr<Ui::ApplicationAdvUi> m_ui;
    ReadHotKeysThr m_thread;
    ButtonGroupEx *m_group;
    std::map<QString, AppHotKeysWid *> m_mTopLevels;
    HotKeyTree m_tree;
};
