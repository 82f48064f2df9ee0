#include "application/ApplicationWid.h"

#include "application/ApplicationBtn.h"
#include "interfaces/ButtonGroupEx.h"
#include "toolkit/PanelStyle.h"

#include "ui_ApplicationUi.h"

#include <QPushButton>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int Margin = 15;
/// A header and the better part of a function.
constexpr int LeastContent = 60;

} // namespace

ApplicationWid::ApplicationWid(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::ApplicationUi>()), m_group(new ButtonGroupEx(this))
{
    m_ui->setupUi(this);
    m_ui->scrollArea->verticalScrollBar()->setStyleSheet(scrollBarSheet());
    // Closed headers stand on top of each other; an open list still takes what is left.
    m_ui->m_layout->setAlignment(Qt::AlignTop);
    for (int appType = 0; appType <= 2; ++appType)
        addSection(appType);
}

ApplicationWid::~ApplicationWid() = default;

void ApplicationWid::addSection(int appType)
{
    auto *const section = new ApplicationBtn(appType, this);
    connect(section, &ApplicationBtn::sigApplicationAssigned, this,
            &ApplicationWid::sigApplicationAssigned);
    connect(this, &ApplicationWid::sigApplicationAssigned, section,
            &ApplicationBtn::slotApplicationAssigned);
    connect(this, &ApplicationWid::sigApplicationSelected, section,
            &ApplicationBtn::slotApplicationSelected);
    connect(this, &ApplicationWid::sigVantrixKeySelected, section,
            &ApplicationBtn::slotVantrixKeySelected);
    m_ui->m_layout->addWidget(section);
    m_group->addButton(section->typeButton());
}

void ApplicationWid::resizeEvent(QResizeEvent *event)
{
    // What is around the sections gives way before they do.
    const int margin = std::clamp((height() - LeastContent) / 2, 0, Margin);
    m_ui->verticalLayout_2->setContentsMargins(margin, margin, margin, margin);
    QWidget::resizeEvent(event);
}

void ApplicationWid::resetPanel()
{
    m_group->setNoneButtonChecked();
    emit sigVantrixKeySelected();
}
