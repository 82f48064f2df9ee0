#pragma once

#include "shell/MacroRecorder.h"
#include "shell/ShellContext.h"

#include <QWidget>

class FlowLayout;
class KeyCombo;
class MacroEventModel;
class QBoxLayout;
class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;
class QTableView;
class QTreeWidget;
class QTreeWidgetItem;

/// The macros: a list to make, rename, duplicate and delete them, the events of the chosen one to
/// record and edit, and the keys that have it.
///
/// Every change goes into the store at once, as a step that can be undone. The context's
/// `macroAdded`, `macroRenamed` and `macroAboutToBeRemoved` are emitted in the same step, so that
/// the mapping page hears of each at its time. Changes by others (undo, import) are shown as they
/// come. What is refused, a name that is taken or events past 127, is said on the page.
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
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    using Command = void (MacroPage::*)();

    QWidget *makeList();
    QWidget *makeEditor();
    QWidget *makeRecordRow(QWidget *parent);
    QWidget *makeEventRow(QWidget *parent);
    QPushButton *button(QWidget *parent, const char *name, const QString &text, Command slot);

    void refresh();
    void refreshList();
    void refreshEvents();
    void refreshUses();
    void renameKeys();
    void showState();
    void say(const QString &text);
    void onCurrentChanged(const QTreeWidgetItem *item);
    void onItemChanged(QTreeWidgetItem *item, int column);
    bool rename(const QString &name, const QString &wanted);

    void addMacro();
    void duplicateMacro();
    void renameMacro();
    void deleteMacro();
    void goBack();
    void addEvent();
    void deleteEvents();
    void moveUp() { moveRow(-1); }
    void moveDown() { moveRow(1); }
    void moveRow(int by);
    void setDelays();
    void storeEvents(const QString &what);
    QString make(const QString &wanted, const vantrix_macro_record &record);
    int currentRow() const;

    void toggleRecording();
    void startRecording();
    void onRecorded();
    void onRecordingStopped();
    void connectRecorder();
    bool recordEvent(QEvent *event);
    Command commandOf(const QObject *list, const QKeyEvent *event) const;

    ShellContext &m_context;
    MacroRecorder *m_recorder;
    MacroEventModel *m_model;
    QBoxLayout *m_columns = nullptr;
    QPushButton *m_backBtn = nullptr;
    QTreeWidget *m_macroList = nullptr;
    QPushButton *m_duplicateBtn = nullptr;
    QPushButton *m_renameBtn = nullptr;
    QPushButton *m_deleteBtn = nullptr;
    QWidget *m_editor = nullptr;
    QLabel *m_title = nullptr;
    QPushButton *m_recordBtn = nullptr;
    QComboBox *m_delayMode = nullptr;
    QSpinBox *m_fixedDelay = nullptr;
    QPushButton *m_setDelaysBtn = nullptr;
    QLabel *m_recordPad = nullptr;
    QLabel *m_message = nullptr;
    QTableView *m_eventTable = nullptr;
    QWidget *m_addRow = nullptr;
    QComboBox *m_newEvent = nullptr;
    KeyCombo *m_newKey = nullptr;
    QPushButton *m_deleteEventBtn = nullptr;
    QPushButton *m_upBtn = nullptr;
    QPushButton *m_downBtn = nullptr;
    QLabel *m_usesTitle = nullptr;
    QWidget *m_uses = nullptr;
    FlowLayout *m_usesLayout = nullptr;
    QString m_current;
    QString m_begun; ///< macro that was begun for a key
};
