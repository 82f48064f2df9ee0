#include "application/ApplicationAdvWid.h"

#include "application/AppHotKeysWid.h"
#include "application/HotKey.h"
#include "interfaces/ButtonGroupEx.h"
#include "toolkit/PanelStyle.h"
#include "ui_ApplicationAdvUi.h"

#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>
#include <vector>

namespace {

bool takesTab(const QWidget *widget)
{
    return (widget->focusPolicy() & Qt::TabFocus) && widget->isVisible() && widget->isEnabled();
}

/// Where Tab stops in a layout and all below it, in reading order.
void collectStops(const QLayout *layout, std::vector<QWidget *> *stops)
{
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *const item = layout->itemAt(i);
        if (item->layout()) {
            collectStops(item->layout(), stops);
            continue;
        }
        QWidget *widget = item->widget();
        if (!widget || !widget->isVisible())
            continue;
        if (takesTab(widget))
            stops->push_back(widget);
        if (auto *const area = qobject_cast<QScrollArea *>(widget))
            widget = area->widget();
        if (widget && widget->layout())
            collectStops(widget->layout(), stops);
    }
}

/// The next stop outside `page` from one within it; null when there is none.
QWidget *stopBeyond(const QWidget *page, QWidget *from, bool next)
{
    const auto step = [next](const QWidget *widget) {
        return next ? widget->nextInFocusChain() : widget->previousInFocusChain();
    };
    for (QWidget *at = step(from); at != from; at = step(at)) {
        if (at != page && !page->isAncestorOf(at) && at->window() != at && takesTab(at))
            return at;
    }
    return nullptr;
}

} // namespace

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

// The order in which Qt has the widgets is that of their arrival, and mending it at each arrival
// takes a walk through all of them.
bool ApplicationAdvWid::focusNextPrevChild(bool next)
{
    std::vector<QWidget *> stops;
    collectStops(m_ui->m_layout, &stops);
    QWidget *const from = QApplication::focusWidget();
    const auto at = std::find(stops.begin(), stops.end(), from);
    if (at == stops.end())
        return QWidget::focusNextPrevChild(next);
    const bool isLast = next ? at + 1 == stops.end() : at == stops.begin();
    QWidget *to = isLast ? stopBeyond(this, from, next) : *(next ? at + 1 : at - 1);
    if (!to)
        to = next ? stops.front() : stops.back();
    to->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
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
