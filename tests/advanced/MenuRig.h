#pragma once

#include "advanced/AdvAssignWid.h"
#include "advanced/AssignMenuWid.h"
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

#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>

#include <memory>

inline QString frameOf(const QString &color)
{
    return "background:transparent;border:1px solid " + color + ";min-height:37px;";
}

inline QString fillOf(const QString &color, const QString &image = QString())
{
    const QString rule = image.isEmpty() ? QString() : "image:url(" + image + ");";
    return "border:none;background:" + color + ";" + rule + "min-height:18px;";
}

inline vantrix_key_mapping recordAt(const QSignalSpy &spy, int call)
{
    return spy.at(call).at(0).value<vantrix_key_mapping>();
}

/// A menu below a main widget, with the services it asks.
class MenuRig : public QObject
{
protected:
    void setUp();
    void tearDown();
    QLabel *label(const char *name) const { return child<QLabel>(m_menu.get(), name); }
    QPushButton *button(const char *name) const { return child<QPushButton>(m_menu.get(), name); }
    ReassignDlg *dialog() const { return m_main->findChild<ReassignDlg *>("m_reassignDlg"); }
    void select(int keyIdx, const vantrix_key_mapping &key);
    /// Opens the dialog with a button of the menu; `user` acts in it and APPLY follows.
    void applyAfter(const char *name, const std::function<void(QObject *dialog)> &user);

    std::unique_ptr<FakeProfileCfg> m_store;
    std::unique_ptr<FakeEnvironment> m_environment;
    std::unique_ptr<QWidget> m_main;
    std::unique_ptr<AssignMenuWid> m_menu;
};

inline void MenuRig::setUp()
{
    m_store = std::make_unique<FakeProfileCfg>();
    m_environment = std::make_unique<FakeEnvironment>();
    m_main = std::make_unique<QWidget>();
    m_main->resize(1280, 800);
    m_environment->mainWidget = m_main.get();
    m_menu = std::make_unique<AssignMenuWid>(m_main.get());
    m_menu->hide();
    m_main->show();
}

inline void MenuRig::tearDown()
{
    Modal::setAnswerer(nullptr);
    m_menu.reset();
    m_main.reset();
    m_environment.reset();
    m_store.reset();
}

inline void MenuRig::select(int keyIdx, const vantrix_key_mapping &key)
{
    m_menu->slotKeySelectionChanged(keyIdx);
    m_menu->slotVantrixKeySelected(key);
}

inline void MenuRig::applyAfter(const char *name, const std::function<void(QObject *dialog)> &user)
{
    int opened = 0;
    Modal::setAnswerer([&](const ModalPrompt &prompt) {
        ++opened;
        user(prompt.dialog);
        child<QPushButton>(prompt.dialog, "m_apply")->click();
        return QVariant(1);
    });
    button(name)->click();
    QCOMPARE(opened, 1);
}
