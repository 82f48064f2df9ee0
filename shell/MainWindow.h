#pragma once

#include "shell/ShellPages.h"

#include <QMainWindow>

class MappingView;
class MessageBar;
class ProfileList;
class QButtonGroup;
class QHBoxLayout;
class QLabel;
class QStackedWidget;

/// The window of the application: the profiles at the left, the mapping page, and beside it, or in
/// its place where there is no room for both, one of the other pages. Interface thread.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(ShellContext &context);
    ~MainWindow() override;

    MappingView *mappingView() const { return m_mapping; }
    ShellPage shownPage() const { return m_page; }
    QString statusText() const;
    /// Keeps geometry and shown profile for the next window, as closing does.
    void remember();

signals:
    /// Another language was chosen. The mapping page speaks it already; the rest of the window
    /// does when it is made anew.
    void languageChanged();

public slots:
    void showPage(ShellPage page);
    void undo();
    void redo();
    /// Takes steps back or forth until that many are done.
    void travelTo(int position);
    void openSettings();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeBody();
    QWidget *makeBar();
    void addTab(ShellPage page, const QString &title, QHBoxLayout *layout);
    void makeStatusBar();
    void makeMenus();
    void makeEditMenu();
    void makeViewMenu();
    void connectContext();
    void restore();
    void say(const QString &text);
    std::pair<int, QString> lastStep() const;
    void sayWhatIsPending();
    void sayWhoHasTheKeyboard();
    bool isHintSaid() const;
    bool isRecording() const;
    void arrange();
    void follow(const std::optional<StepOutcome> &outcome, const QString &text, int shown);
    void updateSteps();
    QString narrowed(const QString &name) const;
    void showName();
    void updateState();
    void onSettingChanged(const QString &name);

    ShellContext &m_context;
    std::vector<ShellPages::Entry> m_pages;
    MessageBar *m_messages;
    ProfileList *m_profiles;
    MappingView *m_mapping;
    QStackedWidget *m_side;
    QWidget *m_findBar = nullptr;
    QButtonGroup *m_tabs;
    QAction *m_undo;
    QAction *m_redo;
    QLabel *m_shown;
    QAction *m_capture = nullptr;
    QAction *m_names = nullptr;
    QLabel *m_status = nullptr;
    QLabel *m_applied = nullptr;
    QLabel *m_saved = nullptr;
    std::pair<int, QString> m_stepOfStatus; ///< last step when the status was said
    int m_profileOfStatus = -1;
    QString m_captureHint;
    bool m_isNews = false; ///< the status tells what the last deed led to
    ShellPage m_page = ShellPage::Mapping;
    bool m_hasRoomForNames = true;
};
