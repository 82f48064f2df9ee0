#include "shell/HistoryPage.h"

#include "shell/FunctionDelegate.h"
#include "shell/ShellStyle.h"

#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

namespace {

constexpr int PositionRole = Qt::UserRole;
/// Steps listed before the present one.
constexpr int MaxListed = 500;

} // namespace

HistoryPage::HistoryPage(ShellContext &context, QWidget *parent)
    : QWidget(parent), m_context(context), m_list(new QListWidget(this))
{
    setObjectName(QStringLiteral("m_historyPage"));
    setStyleSheet(ShellStyle::panelSheet());
    m_list->setObjectName(QStringLiteral("m_historyList"));
    m_list->setAccessibleName(tr("History"));
    m_list->setItemDelegate(new FunctionDelegate(m_list));
    m_list->setUniformItemSizes(true);
    auto *hint = new QLabel(tr("Double-click a step, or press Enter, to go back or forth to it. "
                               "The history is kept when the program is closed."),
                            this);
    hint->setWordWrap(true);
    hint->setStyleSheet(QStringLiteral("color:%1;").arg(ShellStyle::dim().name()));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(hint);
    layout->addWidget(m_list, 1);
    connect(m_list, &QListWidget::itemActivated, this, &HistoryPage::onActivated);
    connect(&context.store(), &ProfileStore::stepsChanged, this, &HistoryPage::refresh);
}

void HistoryPage::showEvent(QShowEvent *)
{
    refresh();
}

void HistoryPage::refresh()
{
    if (!isVisible())
        return;
    const QStringList names = m_context.store().stepNames();
    const int position = m_context.store().stepPosition();
    m_list->clear();
    for (int step = int(names.size()); step >= qMax(0, position - MaxListed); --step) {
        auto *item = new QListWidgetItem(step ? names.at(step - 1) : tr("As it was at the start"));
        item->setData(PositionRole, step);
        if (step > position)
            item->setForeground(ShellStyle::dim().darker(140));
        m_list->addItem(item);
        if (step == position) {
            item->setText(tr("%1   (now)").arg(item->text()));
            m_list->setCurrentItem(item);
        }
    }
    if (position > MaxListed) {
        auto *const earlier = new QListWidgetItem(
            tr("Earlier steps are listed when you go back to the oldest one here."), m_list);
        earlier->setFlags(Qt::NoItemFlags);
    }
}

void HistoryPage::onActivated(const QListWidgetItem *item)
{
    emit m_context.historyRequested(item->data(PositionRole).toInt());
}
