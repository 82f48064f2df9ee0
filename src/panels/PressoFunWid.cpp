#include "panels/PressoFunWid.h"

#include "interfaces/ButtonGroupEx.h"
#include "panels/PanelRecords.h"
#include "toolkit/FixedBtn.h"
#include "toolkit/NarrowText.h"
#include "vocabulary/KeyCodes.h"

#include "ui_PressoFunUi.h"

namespace {

class PressoKey : public FixedBtn
{
public:
    PressoKey(const QString &name, QWidget *parent) : FixedBtn(parent)
    {
        setText(name);
        setToolTip(name);
        setStyleSheet(QStringLiteral("QPushButton{background:transparent;border:1px solid white;"
                                     "min-height:30px;font-size:11px;}"
                                     ":hover{background:rgba(255,255,255,50);}"
                                     ":checked{background:") +
                      inputColor(InputType::PressoFunctions).name(QColor::HexArgb) +
                      QStringLiteral(";border:none;}"));
        fixSize(50, 30);
        narrowText(this, name, width() - 4);
    }
};

} // namespace

PressoFunWid::PressoFunWid(QWidget *parent)
    : FunctionWid(parent), m_ui(std::make_unique<Ui::PressoFunUi>())
{
    m_ui->setupUi(this);
    for (const ushort code : InputKeyLists().at(InputType::PressoFunctions)) {
        auto *const button = new PressoKey(keyFunctionText(code), m_ui->widget);
        addFunction(button, code);
        m_ui->m_keyLayout->addWidget(button);
        m_ui->m_keyLayout->addStretch();
    }
    connect(group(), &ButtonGroupEx::sigButtonClicked, this,
            &PressoFunWid::slotPressoFunKeyClicked);
}

PressoFunWid::~PressoFunWid() = default;

void PressoFunWid::slotPressoFunKeyClicked(QAbstractButton *button)
{
    emit sigPressoFunChanged(recordOfClick(group(), button));
}
