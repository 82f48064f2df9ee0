#pragma once

#include "shell/MacroRecorder.h"
#include "shell/ShellContext.h"

#include <QWidget>

class KeyCombo;
class MacroEventModel;
class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;
class QTableView;
class QVBoxLayout;

/// The events of one macro: to record, to add, to take away, to move and to change in a table.
/// Every change goes into the store at once, as a step that can be undone. What is refused, such
/// as events past 127, is said above the table and in the status line.
class MacroEditor : public QWidget
{
    Q_OBJECT

public:
    explicit MacroEditor(ShellContext &context, QWidget *parent = nullptr);
    ~MacroEditor() override;

    /// Shows a macro as the store has it; an empty name for none. A recording for another macro
    /// ends before.
    void showMacro(const QString &name);
    bool isRecording() const { return m_recorder->isRecording(); }
    /// Ends a recording and keeps what was recorded.
    void stopRecording() { m_recorder->stop(); }
    /// Focus to the button that records.
    void beginHere();
    /// Says something about macros; an empty text takes back what was said.
    void say(const QString &text);

    /// The time by which keys are recorded, in milliseconds; stands in for the passing time.
    void setClock(MacroRecorder::Clock clock);

signals:
    /// Events are to be added and no macro is shown: make one and show it before returning.
    void macroNeeded();
    /// The events of the macro in the store are others now.
    void edited();
    void recordingChanged(bool isRecording);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void makeHead(QVBoxLayout *layout);
    QWidget *makeRecordRow();
    void makeTable();
    QWidget *makeEventRow();
    void renameKeys();
    void showState();
    bool needMacro();

    int currentRow() const;
    void storeEvents(const QString &what);
    void addEvent();
    void deleteEvents();
    void moveUp() { moveRow(-1); }
    void moveDown() { moveRow(1); }
    void moveRow(int by);
    void setDelays();

    void connectRecorder();
    void toggleRecording();
    void startRecording();
    void onRecorded();
    void onRecordingStopped();
    bool recordEvent(QEvent *event);

    ShellContext &m_context;
    MacroRecorder *m_recorder;
    MacroEventModel *m_model;
    QString m_macro;
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
};
