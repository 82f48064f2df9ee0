#pragma once

#include "shell/ShellContext.h"

#include <QWidget>

class QLabel;
class QListWidget;
class QListWidgetItem;
class QMenu;
class QToolButton;

/// The list of the 24 profiles, in the user's order: number, name, the one that is shown, the one
/// the device acts by, and a mark on each that differs from what the device has of it. Rename,
/// duplicate, clear and reorder; each is one step that can be taken back.
class ProfileList : public QWidget
{
    Q_OBJECT

public:
    explicit ProfileList(ShellContext &context, QWidget *parent = nullptr);

    /// Actions for a menu; the same as the buttons under the list.
    void fillMenu(QMenu *menu);
    /// Profiles whose row lights up.
    void setMarked(const std::set<int> &profiles);

    /// Compact: a strip of numbers and marks, for narrow windows. Names are in the tool tips, and
    /// everything the buttons do is in the menu.
    void setCompact(bool compact);
    bool isCompact() const { return m_isCompact; }

public slots:
    void rename();
    /// Copies the shown profile over the next one that nothing was ever put on; says so when
    /// there is none.
    void duplicate();
    void clear();
    void moveUp();
    void moveDown();
    /// Shows the profile `step` places further in the list, around its ends.
    void showNext(int step);

signals:
    /// A name is to be edited and a strip has no room for it.
    void namesNeeded();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void refresh();
    void refreshRow(QListWidgetItem *item);
    void refreshProfile(int owner, int profile);
    QWidget *makeButtons();
    void connectAll();
    void onRowChanged(int row);
    void onEdited(QListWidgetItem *item);
    void editName();
    void move(int step);
    void duplicateTo(int profile);
    void fillTargets(QMenu *menu);
    bool isUnused(int profile) const;
    int rowOf(int profile) const;
    QToolButton *addButton(const QString &text, const QString &tip, const char *name);

    ShellContext &m_context;
    QLabel *m_heading;
    QListWidget *m_list;
    QWidget *m_buttons;
    std::set<int> m_marked;
    bool m_isFilling = false;
    bool m_isCompact = false;
};
