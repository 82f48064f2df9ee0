#pragma once

#include "shell/ShellContext.h"

#include <QStringList>
#include <QWidget>

#include <map>

class KeyMarks;
class QKeyEvent;
class VantrixMapWid;

/// The mapping page with everything that the host owes it: it shows profiles, tells it the macros,
/// carries out what it asks of the device, and lets it capture the keyboard only while it is
/// where the user works. Interface thread.
class MappingView : public QWidget
{
    Q_OBJECT

public:
    explicit MappingView(ShellContext &context, QWidget *parent = nullptr);
    ~MappingView() override;

    VantrixMapWid *page() const { return m_page; }
    /// Shows a profile and selects a key of it; 28 or more selects none.
    void showProfile(int profile, int keyIdx);
    /// Goes to a key of a profile. A profile that is shown is not shown anew, so whatever the page
    /// has to say about it is not said again.
    void goTo(int profile, int keyIdx);
    /// Shows the shown profile again, as the store has it, selection included.
    void refresh();
    /// How often a profile was shown.
    int showCount() const { return m_showCount; }
    /// Makes the page anew, as a change of language asks for; the selection stays.
    void rebuild();
    /// Sends the shown profile to the device.
    void apply();
    /// False: the page never captures the keyboard, so that keys can be chosen with it.
    void setCaptureAllowed(bool allowed);
    bool isCaptureAllowed() const { return m_isCaptureAllowed; }

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectPage();
    void connectStore();
    void tellMacros();
    void selectKey(int keyIdx);
    void onRequest(int command, void *request);
    void resetDevice();
    void onMacroRemoved(const QString &name);
    void onMacrosChanged(int owner);
    void setFocusInside(bool inside);
    void updateCapture();
    bool isStrayRelease(const QKeyEvent *event);

    ShellContext &m_context;
    VantrixMapWid *m_page = nullptr;
    KeyMarks *m_marks = nullptr;
    QStringList m_toldMacros; ///< macros the page knows, in its order
    std::set<std::pair<int, int>> m_marked;
    /// Scan codes of keys that went down over the page, and the pad's key that was selected.
    std::map<quint32, int> m_pressed;
    int m_showCount = 0;
    bool m_isCaptureAllowed = true;
    bool m_isFocusInside = true;
};
