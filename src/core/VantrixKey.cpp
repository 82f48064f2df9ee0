#include "core/VantrixKey.h"

#include "core/DualActionTipWid.h"
#include "vocabulary/AppTables.h"
#include "vocabulary/Common.h"
#include "vocabulary/KeyCodes.h"
#include "vocabulary/KeyNames.h"

namespace {

QWidget *ancestor(QWidget *widget, int generations)
{
    for (; widget && generations > 0; --generations)
        widget = widget->parentWidget();
    return widget;
}

bool showsIcon(int state)
{
    return state == InputType::Media || state == InputType::GameController;
}

QString colorSheet(int state)
{
    QString sheet;
    Common::keyColorStyle(state, sheet);
    return sheet;
}

QString depthText(int depth)
{
    return QString::number(depth) + QLatin1Char('%');
}

} // namespace

VantrixKey::VantrixKey(QWidget *parent)
    : FixedBtn(parent), m_tip(new DualActionTipWid(ancestor(this, 3)))
{
    setCheckable(true);
    m_tip->setObjectName(QStringLiteral("m_tip"));
    m_tip->hide();
}

VantrixKey::~VantrixKey()
{
    delete m_tip.data();
}

VantrixKey::Label VantrixKey::label() const
{
    return {m_labelState, m_text, m_labelToolTip};
}

void VantrixKey::setMapping(ushort keyIdx, const vantrix_key_mapping &mapping)
{
    m_keyIdx = keyIdx;
    if (isDualAction(mapping)) {
        showDualAction(mapping);
        return;
    }
    m_mapping = mapping;
    m_labelState = -1;
    render();
}

void VantrixKey::showStagedDualAction(ushort keyIdx, const vantrix_key_mapping &mapping)
{
    m_keyIdx = keyIdx;
    m_mapping = mapping;
    m_labelState = -1;
    render();
    setFace(m_sheet + colorSheet(InputType::DualAction), m_text, accessibleName());
}

void VantrixKey::showDualAction(const vantrix_key_mapping &mapping)
{
    m_mapping = mapping;
    m_labelState = -1;
    setFace(colorSheet(InputType::DualAction), depthText(mapping.digital.depth));
}

void VantrixKey::setDepth(int depth)
{
    m_mapping.digital.depth = quint8(depth);
    setFullText(depthText(depth));
}

void VantrixKey::showMacro(const QString &text, const QString &toolTip)
{
    showLabel({InputType::Macro, text, toolTip});
}

void VantrixKey::showHotKey(const QString &hotKey, const QString &keyName)
{
    showLabel({InputType::Application, keyName,
               keyName + QStringLiteral(" (") + hotKey + QStringLiteral(") ")});
}

void VantrixKey::showAppFunction(int appType, int funcId)
{
    const QString name = appFunctionText(appType, funcId);
    const QString hint = appHintText(appType, funcId);
    showLabel({InputType::Application, name, hint.isEmpty() ? name : hint});
}

void VantrixKey::showLabel(const Label &label)
{
    m_mapping.type = KeyType::Label;
    m_labelState = label.state;
    m_labelToolTip = label.toolTip;
    setFace(colorSheet(label.state), label.text);
    setToolTip(Common::PlainTip(label.toolTip));
}

void VantrixKey::setLabelToolTip(const QString &toolTip)
{
    m_labelToolTip = toolTip;
    setToolTip(Common::PlainTip(toolTip));
}

void VantrixKey::endUpdate()
{
    m_isUpdating = false;
    if (!m_sheetWaits)
        return;
    m_sheetWaits = false;
    applySheet();
    setFullText(m_text);
}

void VantrixKey::enterEvent(QEvent *event)
{
    FixedBtn::enterEvent(event);
    updateTip();
}

void VantrixKey::updateTip()
{
    if (!m_tip)
        return;
    if (!isDualAction(m_mapping)) {
        m_tip->hide();
        return;
    }
    QPoint place(width(), 0);
    const QWidget *widget = this;
    for (int generation = 0; widget && generation < 3; ++generation) {
        place += widget->pos();
        widget = widget->parentWidget();
    }
    m_tip->move(place);
    m_tip->setTips(keyLegendOfCode(m_mapping.digital.firstAction),
                   keyLegendOfCode(m_mapping.digital.secondAction));
    m_tip->show();
}

void VantrixKey::leaveEvent(QEvent *event)
{
    FixedBtn::leaveEvent(event);
    if (m_tip)
        m_tip->hide();
}

void VantrixKey::resizeEvent(QResizeEvent *event)
{
    FixedBtn::resizeEvent(event);
    setFullText(m_text);
}

void VantrixKey::render()
{
    const ushort code = effectiveCode(m_mapping);
    const int state = inputTypeOfCode(m_keyIdx, char(m_mapping.type), code);
    QString sheet;
    Common::keyIconStyle(state, code, QString(), sheet);

    const QString name =
        keyLegendOfCode(state == InputType::Unassigned ? defaultCodeOfKey(m_keyIdx) : code);
    QString text = showsIcon(state) ? QString() : name;
    if (code == MeridianCode)
        text = Common::ButtonText(m_info);
    if (m_keyIdx < MainKeyCount)
        Common::TextWrap(text);
    setFace(sheet, text, showsIcon(state) ? name : QString());
}

void VantrixKey::setFace(const QString &sheet, const QString &text, const QString &spokenName)
{
    m_sheet = sheet;
    if (m_isUpdating)
        m_sheetWaits = true;
    else
        applySheet();
    setAccessibleName(spokenName);
    setFullText(text);
    if (m_tip && m_tip->isVisible())
        updateTip();
}

void VantrixKey::applySheet()
{
    if (m_sheet == styleSheet())
        return;
    // The icon that a sheet's rule has set stays when the rule goes.
    setIcon(QIcon());
    setStyleSheet(m_sheet);
    ensurePolished();
    ++m_styleCount;
}

void VantrixKey::setFullText(const QString &text)
{
    m_text = text;
    // Names of hot keys are the user's; a legend doubles its ampersands itself.
    const bool isLabel = m_mapping.type == KeyType::Label;
    Common::SetText(this, isLabel ? Common::ButtonText(text) : text);
    if (!m_labelToolTip.isEmpty())
        setToolTip(Common::PlainTip(m_labelToolTip));
}
