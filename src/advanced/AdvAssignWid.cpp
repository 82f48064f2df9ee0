#include "advanced/AdvAssignWid.h"

#include "interfaces/ButtonGroupEx.h"
#include "macro/AssignKey.h"
#include "panels/PanelRecords.h"
#include "toolkit/SearchGrid.h"
#include "vocabulary/KeyNames.h"

#include "ui_AdvAssignUi.h"

#include <map>

namespace {

constexpr int Rows = 6;

} // namespace

AdvAssignWid::AdvAssignWid(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::AdvAssignUi>()), m_group(new ButtonGroupEx(this))
{
    m_ui->setupUi(this);
    m_ui->gridLayout_2->setAlignment(Qt::AlignTop);
    m_ui->m_layout->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_grid = std::make_unique<SearchGrid>(m_ui->m_layout, Rows, m_ui->m_assignWid);
    connect(m_ui->m_title, &QPushButton::clicked, this, &AdvAssignWid::slotTitleClicked);
    connect(m_group, &ButtonGroupEx::sigButtonClicked, this, &AdvAssignWid::slotKeyClicked);
}

AdvAssignWid::AdvAssignWid(QString strTitle, const std::vector<ushort> &lsKeys, QWidget *parent)
    : AdvAssignWid(parent)
{
    m_ui->m_assignWid->hide();
    setKeys(strTitle, lsKeys);
}

AdvAssignWid::~AdvAssignWid() = default;

void AdvAssignWid::setKeys(QString strTitle, const std::vector<ushort> &lsKeys)
{
    m_ui->m_title->setText(strTitle);
    for (const ushort code : lsKeys) {
        auto *const key = new AssignKey(keyText(code), m_ui->m_assignWid);
        m_group->addButton(key, code);
        m_grid->append(key);
    }
}

QString AdvAssignWid::keyText(ushort code)
{
    // clang-format off
    static const std::map<ushort, const char *> sides = {
        {224, QT_TR_NOOP("CTRL LEFT")},
        {225, QT_TR_NOOP("SHIFT LEFT")},
        {226, QT_TR_NOOP("ALT LEFT")},
        {228, QT_TR_NOOP("CTRL RIGHT")},
        {229, QT_TR_NOOP("SHIFT RIGHT")},
        {230, QT_TR_NOOP("ALT RIGHT")},
    };
    // clang-format on
    const auto side = sides.find(code);
    return side == sides.end() ? keyLegendOfCode(code) : tr(side->second);
}

void AdvAssignWid::slotKeyClicked(QAbstractButton *button)
{
    emit sigKeyChanged(recordOfClick(m_group, button));
}

void AdvAssignWid::slotVantrixKeySelected(vantrix_key_mapping key)
{
    m_group->setNoneButtonChecked();
    if (key.type == KeyType::Plain)
        m_group->setButtonChecked(key.code, true);
}

void AdvAssignWid::slotSearch(QString strText)
{
    m_grid->search(strText);
}

void AdvAssignWid::slotTitleClicked()
{
    m_ui->m_assignWid->setVisible(m_ui->m_assignWid->isHidden());
}
