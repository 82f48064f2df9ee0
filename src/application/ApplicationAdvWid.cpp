#include "application/ApplicationAdvWid.h"

#include "application/AppHotKeysWid.h"
#include "application/BranchTitle.h"
#include "application/HotKey.h"
#include "interfaces/ButtonGroupEx.h"
#include "toolkit/PanelStyle.h"
#include "ui_ApplicationAdvUi.h"

#include <QScrollBar>

ApplicationAdvWid::ApplicationAdvWid(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::ApplicationAdvUi>())
{
    m_ui->setupUi(this);
    m_ui->scrollArea->verticalScrollBar()->setStyleSheet(scrollBarSheet());
    // For the bars of all groups.
    m_ui->scrollAreaWidgetContents->setStyleSheet(scrollBarSheet());
    m_group = new ButtonGroupEx(this);
    m_tree.group = m_group;
    connect(m_group, &ButtonGroupEx::sigButtonClicked, this, &ApplicationAdvWid::slotKeyClicked);
    m_ui->m_layout->setAlignment(Qt::AlignTop);
    connect(&m_thread, &ReadHotKeysThr::sigAddTopLevel, this, &ApplicationAdvWid::slotAddTopLevel);
    connect(&m_thread, &ReadHotKeysThr::sigAddSecondLev, this,
            &ApplicationAdvWid::slotAddSecondLev);
    connect(&m_thread, &ReadHotKeysThr::sigAddHotKeys, this, &ApplicationAdvWid::slotAddHotKeys);
    m_thread.startRead();
}

ApplicationAdvWid::~ApplicationAdvWid()
{
    m_thread.abandon();
    if (m_thread.isRunning())
        m_thread.stopRead();
    // Before the leaves, each of which would look for itself in it.
    delete m_group;
}

void ApplicationAdvWid::slotKeyClicked(QAbstractButton *button)
{
    const auto *const key = static_cast<HotKey *>(button);
    if (key->isChecked())
        emit sigAppHotKeyChanged(key->hotKey(), key->keyName());
    else
        emit sigAppHotKeyChanged({}, {});
}

void ApplicationAdvWid::slotAddTopLevel(QString strTopLev)
{
    if (!m_tree.addTitle())
        return;
    auto *const topLevel = new AppHotKeysWid(m_tree, strTopLev, m_ui->scrollAreaWidgetContents);
    // New widgets are the last to be reached by Tab, whatever they stand in.
    setTabOrder(lastStopIn<AppHotKeysWid>(topLevel->lastStop(), m_ui->m_layout),
                topLevel->lastStop());
    connect(this, &ApplicationAdvWid::sigSearch, topLevel, &AppHotKeysWid::sigSearch);
    connect(this, &ApplicationAdvWid::sigVantrixKeySelected, topLevel,
            &AppHotKeysWid::sigVantrixKeySelected);
    m_mTopLevels[strTopLev] = topLevel;
    m_ui->m_layout->addWidget(topLevel);
}

void ApplicationAdvWid::slotAddSecondLev(QString strTopLev, QStringList lsSecondLev)
{
    const auto topLevel = m_mTopLevels.find(strTopLev);
    if (topLevel != m_mTopLevels.end())
        topLevel->second->addSecondLevels(lsSecondLev);
}

void ApplicationAdvWid::slotAddHotKeys(QString strTopLev, QString strSecondLev, QString strThirdLev,
                                       std::map<QString, std::map<QString, QString>> mHotKeys)
{
    const auto topLevel = m_mTopLevels.find(strTopLev);
    if (topLevel != m_mTopLevels.end())
        topLevel->second->addHotKeys(strSecondLev, strThirdLev, std::move(mHotKeys));
}
