#include "macro/MacroAdvWid.h"

#include "interfaces/ButtonGroupEx.h"
#include "macro/AssignKey.h"
#include "toolkit/PanelStyle.h"
#include "toolkit/SearchGrid.h"
#include "vocabulary/KeyCodes.h"
#include "vocabulary/KeyNames.h"

#include "ui_MacroAdvUi.h"
#include "vocabulary/Common.h"

#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int FirstMacroId = WinShortcutCount;
constexpr int MacroRows = 6;
constexpr int ShortcutRows = 10;

QString chordKeyName(ushort code)
{
    switch (code) {
    case 224:
    case 228:
        return MacroAdvWid::tr("CTRL");
    case 225:
    case 229:
        return MacroAdvWid::tr("SHIFT");
    case 226:
    case 230:
        return MacroAdvWid::tr("ALT");
    default:
        return keyLegendOfCode(code).simplified();
    }
}

QString chordText(int shortcutId)
{
    const auto chord = WinShortcutKeys().find(shortcutId);
    if (chord == WinShortcutKeys().end())
        return QString();
    QStringList names;
    for (const ushort code : chord->second)
        names << chordKeyName(code);
    return names.join(QStringLiteral(" + "));
}

} // namespace

MacroAdvWid::MacroAdvWid(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::MacroAdvUi>()), m_group(new ButtonGroupEx(this))
{
    m_ui->setupUi(this);
    m_ui->scrollArea->verticalScrollBar()->setStyleSheet(scrollBarSheet());
    m_ui->scrollArea->horizontalScrollBar()->setStyleSheet(scrollBarSheet());
    m_ui->gridLayout->setAlignment(Qt::AlignTop);
    m_ui->m_userLayout->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_ui->m_winLayout->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_userGrid = std::make_unique<SearchGrid>(m_ui->m_userLayout, MacroRows, m_ui->m_userWid);
    m_winGrid = std::make_unique<SearchGrid>(m_ui->m_winLayout, ShortcutRows, m_ui->m_winWid);
    buildShortcuts();

    connect(m_ui->m_createBtn, &QPushButton::clicked, this, &MacroAdvWid::sigCreateMacro);
    connect(m_ui->m_userBtn, &QPushButton::clicked, this, &MacroAdvWid::slotUserBtnClicked);
    connect(m_ui->m_winBtn, &QPushButton::clicked, this, &MacroAdvWid::slotWinBtnClicked);
    connect(m_group, &ButtonGroupEx::sigButtonClicked, this, &MacroAdvWid::slotMacroKeyClicked);
}

MacroAdvWid::~MacroAdvWid() = default;

void MacroAdvWid::buildShortcuts()
{
    for (int id = 0; id < WinShortcutCount; ++id) {
        auto *const key = new AssignKey(winShortcutText(id), m_ui->m_winWid);
        key->setToolTip(chordText(id));
        m_group->addButton(key, id);
        m_winGrid->append(key);
    }
}

void MacroAdvWid::addMacro(std::string name)
{
    appendMacro(name);
    m_userGrid->search(m_search);
}

void MacroAdvWid::appendMacro(const std::string &name)
{
    auto *const key =
        new AssignKey(Common::ButtonText(QString::fromStdString(name)), m_ui->m_userWid);
    m_group->addButton(key, FirstMacroId + userMacroCount());
    m_userGrid->append(key);
    // Tab runs in the order in which buttons were made; the shortcuts stand below.
    QWidget *const before = userMacroCount() == 0
                                ? m_ui->m_userBtn
                                : m_group->button(FirstMacroId + userMacroCount() - 1);
    setTabOrder(before, key);
    m_names.push_back(name);
}

void MacroAdvWid::delMacro(std::string name)
{
    std::vector<std::string> names = m_names;
    names.erase(std::remove(names.begin(), names.end(), name), names.end());
    if (names.size() == m_names.size())
        return;
    clearMacros();
    for (const std::string &kept : names)
        appendMacro(kept);
    m_userGrid->search(m_search);
}

void MacroAdvWid::renameMacro(std::string oldName, std::string newName)
{
    const auto found = std::find(m_names.begin(), m_names.end(), oldName);
    if (found == m_names.end())
        return;
    *found = newName;
    const int id = FirstMacroId + int(found - m_names.begin());
    m_group->button(id)->setText(Common::ButtonText(QString::fromStdString(newName)));
    m_userGrid->search(m_search);
}

void MacroAdvWid::clearMacros()
{
    m_userGrid->clear();
    for (int i = 0; i < userMacroCount(); ++i)
        delete m_group->button(FirstMacroId + i);
    m_names.clear();
}

void MacroAdvWid::selectMacro(QString strMacroNo)
{
    m_group->setNoneButtonChecked();
    const int number = strMacroNo.remove(QLatin1Char('M')).toInt();
    if (number < 1)
        return;
    const int shortcut = number - userMacroCount() - 1;
    if (shortcut >= WinShortcutCount)
        return;
    m_group->setButtonChecked(shortcut >= 0 ? shortcut : number + FirstMacroId - 1, true);
}

void MacroAdvWid::slotMacroKeyClicked(QAbstractButton *button)
{
    const int id = m_group->id(button);
    const bool isShortcut = id < FirstMacroId;
    const int number = isShortcut ? userMacroCount() + 1 + id : id - FirstMacroId + 1;
    const QString name = isShortcut
                             ? button->text()
                             : QString::fromStdString(m_names[std::size_t(id - FirstMacroId)]);
    emit sigMacroAssigned(button->isChecked(), QLatin1Char('M') + QString::number(number), name,
                          isShortcut ? id : -1);
}

void MacroAdvWid::slotVantrixKeySelected(vantrix_key_mapping key)
{
    if (key.type != KeyType::Label)
        m_group->setNoneButtonChecked();
}

void MacroAdvWid::slotSearch(QString strText)
{
    m_search = strText;
    m_userGrid->search(strText);
    m_winGrid->search(strText);
}

void MacroAdvWid::slotUserBtnClicked()
{
    m_ui->m_userWid->setVisible(m_ui->m_userWid->isHidden());
}

void MacroAdvWid::slotWinBtnClicked()
{
    m_ui->m_winWid->setVisible(m_ui->m_winWid->isHidden());
}
