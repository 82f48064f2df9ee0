#pragma once

#include "shell/ShellContext.h"

#include <QWidget>

class DepthSlider;
class PadView;
class QBoxLayout;
class QComboBox;
class QLabel;
class QPushButton;
class QTreeWidget;

/// The pad as the simulated device has it, to press and to watch: the keys of the profile that the
/// device acts by, a slider for the depth of the chosen key, and a log of what the device sends. A
/// key that becomes selected on the mapping page is chosen here as well.
///
/// Nothing here changes what is stored for keys; only the profile that the device acts by follows
/// the list above the pad and the keys that switch it.
class DeviceView : public QWidget
{
    Q_OBJECT

public:
    /// Events that the log keeps; older ones are dropped.
    static constexpr int LogLimit = 1000;

    explicit DeviceView(ShellContext &context, QWidget *parent = nullptr);

    /// An event in words: "press B", "release B", "wait 20 ms", "switch to PROFILE 2".
    QString eventText(const DeviceEvent &event) const;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QWidget *makePad();
    QWidget *makeLog();
    void onChanged();
    void followSelection();
    void refresh();
    void chooseProfile(int row);
    void chooseKey(int keyIdx);
    void setDepth(int keyIdx, int percent);
    void log(int keyIdx, int percent, const std::vector<DeviceEvent> &events);
    void releaseAll();

    ShellContext &m_context;
    ProfileKeys m_keys; ///< that the device acts by
    QBoxLayout *m_columns = nullptr;
    QComboBox *m_profile = nullptr;
    QLabel *m_pending = nullptr;
    PadView *m_pad = nullptr;
    DepthSlider *m_depth = nullptr;
    QLabel *m_depthText = nullptr;
    QLabel *m_keyText = nullptr;
    QTreeWidget *m_log = nullptr;
};
