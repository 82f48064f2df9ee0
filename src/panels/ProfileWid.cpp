#include "panels/ProfileWid.h"

#include "interfaces/ButtonGroupEx.h"
#include "panels/PanelRecords.h"
#include "toolkit/PanelStyle.h"
#include "vocabulary/KeyCodes.h"

#include "ui_ProfileUi.h"

#include <QPushButton>
#include <QScrollBar>

ProfileWid::ProfileWid(QWidget *parent)
    : FunctionWid(parent), m_ui(std::make_unique<Ui::ProfileUi>())
{
    m_ui->setupUi(this);
    m_ui->scrollArea->verticalScrollBar()->setStyleSheet(scrollBarSheet());
    for (const ushort code : InputKeyLists().at(InputType::Profile)) {
        auto *const button =
            new QPushButton(keyFunctionText(code), m_ui->scrollAreaWidgetContents_2);
        button->setStyleSheet(functionSheet(InputType::Profile));
        addFunction(button, code);
        m_ui->m_layout->addWidget(button);
    }
    connect(group(), &ButtonGroupEx::sigButtonClicked, this, &ProfileWid::slotKeyClicked);
}

ProfileWid::~ProfileWid() = default;

void ProfileWid::slotKeyClicked(QAbstractButton *button)
{
    emit sigProfileChanged(recordOfClick(group(), button));
}
