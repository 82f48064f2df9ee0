#pragma once

#include "shell/MacroRecorder.h"
#include "shell/ShellContext.h"

#include <QStringList>
#include <QWidget>

#include <map>

class FlowLayout;
class MacroEditor;
class QBoxLayout;
class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/// The macros: a list to make, rename, duplicate and delete them, the events of the chosen one in a
/// MacroEditor, and the keys that have it.
///
/// Every change goes into the store at once, as a step that can be undone. The context's
/// `macroAdded`, `macroRenamed` and `macroAboutToBeRemoved` are emitted in the same step, so that
/// the mapping page hears of each at its time. Changes by others (undo, import) are shown as they
/// come. What is refused, such as a name that is taken, is said on the page.
class MacroPage : public QWidget
{
    Q_OBJECT

public:
    explicit MacroPage(ShellContext &context, QWidget *parent = nullptr);
    ~MacroPage() override;

    /// Name of the chosen macro; empty without one.
    QString currentMacro() const { return m_current; }
    void selectMacro(const QString &name);

    /// Begins a new macro for someone who comes from the mapping page, and offers the way back.
    void beginForKey();

    /// The time by which keys are recorded, in milliseconds; stands in for the passing time.
    void setClock(MacroRecorder::Clock clock);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QWidget *makeList();

    void refresh();
    void refreshList();
    void refreshUses();
    void onKeysChanged();
    std::map<QString, int> countKeys() const;
    void showState();
    void onCurrentChanged(const QTreeWidgetItem *item);
    void onItemChanged(QTreeWidgetItem *item, int column);
    bool rename(const QString &name, const QString &wanted);
    QString make(const QString &wanted, const vantrix_macro_record &record);

    void newMacro();
    void addMacro();
    void duplicateMacro();
    void renameMacro();
    void chooseAmong(const QStringList &names);
    void moveMacro(int by);
    void deleteMacro();
    bool isBegunEmpty() const;
    void endForKey();
    void goBack();

    ShellContext &m_context;
    MacroEditor *m_editor = nullptr;
    QBoxLayout *m_columns = nullptr;
    QPushButton *m_backBtn = nullptr;
    QTreeWidget *m_macroList = nullptr;
    QPushButton *m_duplicateBtn = nullptr;
    QPushButton *m_renameBtn = nullptr;
    QPushButton *m_deleteBtn = nullptr;
    QLabel *m_usesTitle = nullptr;
    QWidget *m_uses = nullptr;
    FlowLayout *m_usesLayout = nullptr;
    QString m_current;
    QStringList m_names; ///< as they were shown last
    QString m_begun;     ///< macro that was begun for a key
};
