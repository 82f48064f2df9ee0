#include "dualaction/ActionBtn.h"

#include "core/records.h"
#include "interfaces/OstraAction.h"
#include "interfaces/OstraMenu.h"
#include "vocabulary/Common.h"
#include "vocabulary/KeyCategories.h"
#include "vocabulary/KeyCodes.h"
#include "vocabulary/KeyNames.h"

namespace {

/// The most rows of a column in the menus.
constexpr int menuRows = 12;

/// The digits of the categories are pseudo keys; an action takes the keys themselves.
ushort actionCode(ushort code)
{
    constexpr ushort firstDigit = 2817;
    constexpr ushort lastDigit = 2826;
    constexpr ushort firstDigitKey = 30;
    return code >= firstDigit && code <= lastDigit ? code - firstDigit + firstDigitKey : code;
}

/// Name of a code on one line.
QString lineName(ushort code)
{
    return keyLegendOfCode(code).simplified();
}

} // namespace

ActionBtn::ActionBtn(QWidget *parent) : QPushButton(parent)
{
    setStyleSheet(QStringLiteral(
        "QPushButton{background:transparent;color:white;border:1px solid white;min-height:30px;}"
        "QPushButton::hover{background:rgba(255,255,255,50)}QPushButton::disabled{background:rgb("
        "121,121,121);color:rgb(168,168,168);border:none;}"));
    setFixedWidth(100);
    connect(this, &QPushButton::clicked, this, &ActionBtn::slotBtnClicked);
}

ActionBtn::~ActionBtn()
{
    delete m_popup.data();
}

void ActionBtn::setActionNo(int actionNo)
{
    m_actionNo = actionNo;
    m_side = actionNo == 1 ? 1 : 0;
    delete m_popup.data();
    m_popup = buildTopMenu();
}

OstraMenu *ActionBtn::buildTopMenu()
{
    auto *menu = new OstraMenu(parentWidget());
    QList<OstraAction *> entries;
    for (const int input : {InputType::Keyboard, InputType::Mouse, InputType::Media}) {
        auto *entry = new OstraAction(m_side, 0, inputTypeText(input), menu);
        entry->setOstraMenu(input == InputType::Keyboard
                                ? buildKeyboardMenu(menu)
                                : buildCodeMenu(InputKeyLists().at(input), menu));
        entries << entry;
    }
    menu->addOstraActions(entries, menuRows);
    return menu;
}

OstraMenu *ActionBtn::buildKeyboardMenu(OstraMenu *parent)
{
    auto *menu = new OstraMenu(parent);
    QList<OstraAction *> entries;
    for (int i = 0; i < KeyCategory::Count; ++i) {
        if (i == KeyCategory::Symbols)
            continue;
        const KeyCategory &category = KeyCategories()[std::size_t(i)];
        auto *entry = new OstraAction(m_side, 0, QString::fromLatin1(category.title), menu);
        entry->setOstraMenu(buildCodeMenu(category.codes, menu));
        entries << entry;
    }
    menu->addOstraActions(entries, menuRows);
    return menu;
}

OstraMenu *ActionBtn::buildCodeMenu(const std::vector<ushort> &codes, OstraMenu *parent)
{
    auto *menu = new OstraMenu(parent);
    QList<OstraAction *> entries;
    for (const ushort listed : codes) {
        const ushort code = actionCode(listed);
        entries << new OstraAction(m_side, code, lineName(code), menu);
    }
    menu->addOstraActions(entries, menuRows);
    connect(menu, &OstraMenu::sigActionChanged, this, &ActionBtn::slotActionChanged);
    return menu;
}

void ActionBtn::resetAction()
{
    m_code = 0;
    Common::SetText(this, tr("ACTION") + QLatin1Char(' ') + QString::number(m_actionNo));
    setEnabled(m_actionNo == 1);
}

void ActionBtn::setKeyCode(ushort code)
{
    if (code == 0) {
        resetAction();
        return;
    }
    m_code = code;
    Common::SetText(this, lineName(code));
}

void ActionBtn::slotHideMenu()
{
    if (m_popup)
        m_popup->hideMenu();
}

void ActionBtn::slotBtnClicked()
{
    if (!m_popup)
        return;
    if (m_popup->isVisible()) {
        m_popup->hideMenu();
        return;
    }
    m_popup->ensurePolished();
    m_popup->adjustSize();
    const int x = m_side == 1 ? 0 : width() - m_popup->width();
    m_popup->popup(this, mapToGlobal(QPoint(x, height())));
    m_popup->focusFirst();
}

void ActionBtn::slotActionChanged(ushort id, QString strText)
{
    m_code = id;
    Common::SetText(this, strText);
    emit sigUpdateActions();
    slotHideMenu();
    setFocus();
}
