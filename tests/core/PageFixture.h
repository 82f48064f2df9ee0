#pragma once

#include "core/VantrixMapWid.h"
#include "fakes/FakeProfileCfg.h"
#include "fakes/FakeServices.h"
#include "interfaces/Modal.h"
#include "support/Gestures.h"

#include <QPointer>
#include <QPushButton>
#include <QThreadPool>

#include <memory>

/// A page of owner 5 that shows profile 2 in a window, on fake services. Whoever is asked
/// something modal gets `m_answer`, and the question stands in `m_asked`.
class PageFixture
{
protected:
    void open()
    {
        m_environment = std::make_unique<FakeEnvironment>();
        m_hotKeys = std::make_unique<FakeSystemHotKey>();
        m_store = std::make_unique<FakeProfileCfg>();
        m_parse = std::make_unique<FakeParse>();
        m_window = std::make_unique<QWidget>();
        m_window->resize(784, 808);
        m_environment->mainWidget = m_window.get();
        m_asked.clear();
        m_answer = 0;
        Modal::setAnswerer([this](const ModalPrompt &prompt) {
            m_asked << prompt.title + QLatin1Char('|') + prompt.text;
            return QVariant(m_answer);
        });
        m_page = new VantrixMapWid(5, m_window.get());
        m_page->resize(784, 808);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_page->updateUi(2);
        m_store->clearLog();
    }

    void close()
    {
        m_window.reset();
        QThreadPool::globalInstance()->waitForDone();
        Modal::setAnswerer(nullptr);
        m_parse.reset();
        m_store.reset();
        m_hotKeys.reset();
        m_environment.reset();
    }

    template <typename T>
    T *find(const char *name) const
    {
        return child<T>(m_page, QLatin1String(name));
    }
    QPushButton *key(int index) const
    {
        return child<QPushButton>(m_page, QStringLiteral("key_%1").arg(index));
    }
    FakeProfileCfg::Profile &profile(int number = 2) { return m_store->profile(5, number); }
    bool isCapturing() const { return m_hotKeys->capturing != nullptr; }
    void click(const char *name) const { find<QPushButton>(name)->click(); }

    std::unique_ptr<FakeEnvironment> m_environment;
    std::unique_ptr<FakeSystemHotKey> m_hotKeys;
    std::unique_ptr<FakeProfileCfg> m_store;
    std::unique_ptr<FakeParse> m_parse;
    std::unique_ptr<QWidget> m_window;
    QPointer<VantrixMapWid> m_page;
    QStringList m_asked;
    int m_answer = 0;
};
