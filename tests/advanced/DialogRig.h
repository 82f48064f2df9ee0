#pragma once

#include "advanced/AdvAssignWid.h"
#include "advanced/GameControllerAdvWid.h"
#include "advanced/KeyboardAdvWid.h"
#include "advanced/ReassignDlg.h"
#include "application/ApplicationAdvWid.h"
#include "dualaction/DualActionAdvWid.h"
#include "fakes/FakeProfileCfg.h"
#include "fakes/FakeServices.h"
#include "interfaces/Modal.h"
#include "macro/MacroAdvWid.h"
#include "support/DualKey.h"
#include "support/Gestures.h"
#include <QtTest>

#include <QAbstractButton>
#include <QButtonGroup>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QWindow>

#include <memory>

inline vantrix_key_mapping labelKey()
{
    vantrix_key_mapping key;
    key.type = 1;
    return key;
}

/// A dialog over a main window, with the services it asks and a list of what leaves it.
class DialogRig : public QObject
{
protected:
    void setUp();
    void tearDown();
    /// What a page says when the user picks there, by name.
    void pick(const QString &kind);
    void open(int keyIdx, int state, const vantrix_key_mapping &key,
              const std::function<void()> &user);
    QPushButton *button(const char *name) const { return child<QPushButton>(m_dialog.get(), name); }
    QAbstractButton *input(int id) const
    {
        return child<QButtonGroup>(m_dialog.get(), QString())->button(id);
    }
    int page() const { return child<QStackedWidget>(m_dialog.get(), "m_stacked")->currentIndex(); }

    std::unique_ptr<FakeProfileCfg> m_store;
    std::unique_ptr<FakeEnvironment> m_environment;
    std::unique_ptr<QWidget> m_main;
    std::unique_ptr<ReassignDlg> m_dialog;
    QStringList m_sent; ///< what left the dialog, in order
};

inline void DialogRig::setUp()
{
    m_store = std::make_unique<FakeProfileCfg>();
    m_environment = std::make_unique<FakeEnvironment>();
    m_main = std::make_unique<QWidget>();
    m_main->setGeometry(40, 30, 1000, 700);
    m_main->show();
    m_environment->mainWidget = m_main.get();
    m_environment->mainWindow = m_main->windowHandle();
    m_dialog = std::make_unique<ReassignDlg>(m_main.get());
    m_sent.clear();
    connect(m_dialog.get(), &ReassignDlg::sigVantrixKeyAssigned, this,
            [this](vantrix_key_mapping key) {
                m_sent << QString("record %1 %2 %3 %4")
                              .arg(key.type)
                              .arg(ushort(key.code))
                              .arg(ushort(key.altCode))
                              .arg(ushort(key.digital.firstAction));
            });
    connect(m_dialog.get(), &ReassignDlg::sigMacroAssigned, this,
            [this](bool bSelected, const QString &no, const QString &name, int shortcut) {
                m_sent << QString("macro %1 %2 %3 %4").arg(bSelected).arg(no, name).arg(shortcut);
            });
    connect(m_dialog.get(), &ReassignDlg::sigApplicationAdvAssigned, this,
            [this](const QString &hotKey, const QString &name) {
                m_sent << QString("hotkey '%1' '%2'").arg(hotKey, name);
            });
    connect(m_dialog.get(), &ReassignDlg::sigCreateMacro, this, [this] { m_sent << "create"; });
}

inline void DialogRig::tearDown()
{
    Modal::setAnswerer(nullptr);
    m_dialog.reset();
    m_environment->mainWindow = nullptr;
    m_main.reset();
    m_environment.reset();
    m_store.reset();
}

inline void DialogRig::open(int keyIdx, int state, const vantrix_key_mapping &key,
                            const std::function<void()> &user)
{
    Modal::setAnswerer([&](const ModalPrompt &) {
        user();
        return QVariant(0);
    });
    m_dialog->openFor(keyIdx, state, &key);
    Modal::setAnswerer(nullptr);
}

inline void DialogRig::pick(const QString &kind)
{
    const QWidget *const dialog = m_dialog.get();
    if (kind == "keyboard")
        emit child<KeyboardAdvWid>(dialog, "m_keyboard")->sigKeyChanged(plainKey(4));
    else if (kind == "mouse")
        emit child<AdvAssignWid>(dialog, "m_mouse")->sigKeyChanged(plainKey(496));
    else if (kind == "media")
        emit child<AdvAssignWid>(dialog, "m_media")->sigKeyChanged(plainKey(240));
    else if (kind == "presso")
        emit child<AdvAssignWid>(dialog, "m_pressoFunc")->sigKeyChanged(plainKey(312));
    else if (kind == "backlight")
        emit child<AdvAssignWid>(dialog, "m_backlight")->sigKeyChanged(plainKey(385));
    else if (kind == "profile")
        emit child<AdvAssignWid>(dialog, "m_profile")->sigKeyChanged(plainKey(1536));
    else if (kind == "controller")
        emit child<GameControllerAdvWid>(dialog, "m_gameController")
            ->sigGameControllerChanged(gameKey(462));
    else if (kind == "dual")
        emit child<DualActionAdvWid>(dialog, "m_dualAction")->sigDualActionChanged(dualKey(4, 5));
    else if (kind == "macro")
        emit child<MacroAdvWid>(dialog, "m_macro")->sigMacroAssigned(true, "M2", "Jump", -1);
    else if (kind == "shortcut")
        emit child<MacroAdvWid>(dialog, "m_macro")->sigMacroAssigned(true, "M9", "COPY", 4);
    else if (kind == "hotkey")
        emit child<ApplicationAdvWid>(dialog, "m_application")
            ->sigAppHotKeyChanged("CTRL+S", "Save");
    else
        QFAIL(qPrintable("no pick named " + kind));
}
