#pragma once

#include "interfaces/IEnvironment.h"
#include "interfaces/IParseVantrix.h"
#include "interfaces/ISystemHotKey.h"

#include <QPointer>
#include <QVector>
#include <QWidget>

/// Fakes of the small services, each installed while it lives.

class FakeEnvironment final : public IEnvironment
{
public:
    FakeEnvironment() { setInstance(this); }
    ~FakeEnvironment() { setInstance(nullptr); }

    int getLanguage() override { return language; }
    QWindow *getMainWindow() override { return mainWindow; }
    QWidget *getMainWidget() override { return mainWidget; }

    int language = 2; ///< English
    QWindow *mainWindow = nullptr;
    QPointer<QWidget> mainWidget;
};

class FakeSystemHotKey final : public ISystemHotKey
{
public:
    FakeSystemHotKey() { setInstance(this); }
    ~FakeSystemHotKey() { setInstance(nullptr); }

    void startKeyCapture(QWidget *widget) override
    {
        capturing = widget;
        ++startCount;
    }
    void stopKeyCapture() override
    {
        capturing = nullptr;
        ++stopCount;
    }

    QWidget *capturing = nullptr;
    int startCount = 0;
    int stopCount = 0;
};

class FakeParse final : public IParseVantrix
{
public:
    FakeParse() { setInstance(this); }
    ~FakeParse() { setInstance(nullptr); }

    void makeSdkRequest(int id, void **request) override
    {
        ids << id;
        *request = answer;
    }

    QVector<int> ids;
    void *answer = nullptr;
};
