#include "panels/ProfileWid.h"

#include "interfaces/ButtonGroupEx.h"
#include "panels/PanelRecords.h"
#include "toolkit/NarrowText.h"
#include "toolkit/PanelStyle.h"
#include "vocabulary/KeyCodes.h"

#include "ui_ProfileUi.h"

#include <QPushButton>
#include <QScrollBar>

namespace {

class ProfileBtn : public QPushButton
{
public:
    ProfileBtn(const QString &name, QWidget *parent) : QPushButton(name, parent)
    {
        setStyleSheet(functionSheet(InputType::Profile));
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        keepTextNarrow(this, 4);
    }

    QSize minimumSizeHint() const override { return {1, QPushButton::minimumSizeHint().height()}; }
};

} // namespace

ProfileWid::ProfileWid(QWidget *parent)
    : FunctionWid(parent), m_ui(std::make_unique<Ui::ProfileUi>())
{
    m_ui->setupUi(this);
    m_ui->scrollArea->verticalScrollBar()->setStyleSheet(scrollBarSheet());
    for (const ushort code : InputKeyLists().at(InputType::Profile)) {
        auto *const button =
            new ProfileBtn(keyFunctionText(code), m_ui->scrollAreaWidgetContents_2);
        addFunction(button, code);
        m_ui->m_layout->addWidget(button);
    }
    connect(group(), &ButtonGroupEx::sigButtonClicked, this, &ProfileWid::slotKeyClicked);
    connect(group(), qOverload<QAbstractButton *, bool>(&QButtonGroup::buttonToggled), this,
            &ProfileWid::scrollToChecked);
}

ProfileWid::~ProfileWid() = default;

void ProfileWid::scrollToChecked()
{
    if (QAbstractButton *const button = group()->checkedButton())
        m_ui->scrollArea->ensureWidgetVisible(button);
}

void ProfileWid::resizeEvent(QResizeEvent *event)
{
    FunctionWid::resizeEvent(event);
    scrollToChecked();
}

void ProfileWid::showEvent(QShowEvent *event)
{
    FunctionWid::showEvent(event);
    scrollToChecked();
}

void ProfileWid::slotKeyClicked(QAbstractButton *button)
{
    emit sigProfileChanged(recordOfClick(group(), button));
}
