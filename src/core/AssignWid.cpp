#include "core/AssignWid.h"

#include "core/PadPicture.h"
#include "core/StyleHold.h"
#include "interfaces/ButtonGroupEx.h"
#include "interfaces/IVantrixProfileCfg.h"
#include "interfaces/MsgBox.h"
#include "vocabulary/AppTables.h"
#include "vocabulary/KeyCodes.h"
#include "vocabulary/Presets.h"

#include "ui_AssignUi.h"

#include <QPointer>

#include <algorithm>

namespace {

constexpr ushort BacklightKeyCode = 385;
constexpr int BacklightKey = 21;
constexpr int WideKey = 23;

// Measures of the pad's picture, which is drawn on a ground of 150 by 260.
constexpr int PictureWidth = 150;
constexpr int PictureHeight = 260;

IVantrixProfileCfg *store()
{
    return IVantrixProfileCfg::Instance();
}

} // namespace

AssignWid::AssignWid(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::AssignUi>()), m_picture(new PadPicture(this)),
      m_below(new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Fixed)),
      m_keys(new ButtonGroupEx(this))
{
    m_ui->setupUi(this);
    m_ui->verticalLayout_2->addItem(m_below);
    m_ui->verticalLayout_2->setSizeConstraint(QLayout::SetNoConstraint);
    m_picture->setObjectName(QStringLiteral("m_picture"));
    m_picture->lower();
    makeKeys();
    for (int keyIdx = 0; keyIdx < KeyCount; ++keyIdx) {
        if (auto *const button = findChild<QPushButton *>(QStringLiteral("key_%1").arg(keyIdx)))
            m_keys->addButton(button, keyIdx);
    }
    connect(m_keys, &ButtonGroupEx::sigButtonClicked, this, &AssignWid::slotKeySelected);
    setAttribute(Qt::WA_StyledBackground);
}

AssignWid::~AssignWid() = default;

void AssignWid::makeKeys()
{
    const auto add = [](int keyIdx, QGridLayout *grid, int row, int column, int columns = 1) {
        auto *const button = new VantrixKey(grid->parentWidget());
        button->setObjectName(QStringLiteral("key_%1").arg(keyIdx));
        grid->addWidget(button, row, column, 1, columns);
    };
    add(27, m_ui->gridLayout_2, 0, 0);
    add(24, m_ui->gridLayout_2, 0, 1);
    add(26, m_ui->gridLayout_2, 1, 0);
    add(25, m_ui->gridLayout_2, 1, 1);
    constexpr int columns = 5;
    for (int keyIdx = 0; keyIdx < WideKey; ++keyIdx)
        add(keyIdx, m_ui->gridLayout_3, keyIdx / columns, keyIdx % columns);
    add(WideKey, m_ui->gridLayout_3, 4, 3, 2);
}

VantrixKey *AssignWid::keyButton(int keyIdx) const
{
    return static_cast<VantrixKey *>(m_keys->button(keyIdx));
}

int AssignWid::currentKey() const
{
    return store()->getCurrentKey(m_iOwner, m_iProfile) & 0xFFFF;
}

/// The button of the selected key; unchecks all when there is none.
VantrixKey *AssignWid::selectedButton(int *keyIdx)
{
    *keyIdx = currentKey();
    if (isValidKey(*keyIdx))
        return keyButton(*keyIdx);
    m_keys->setNoneButtonChecked();
    return nullptr;
}

void AssignWid::setScope(int iOwner, int iProfile)
{
    m_iOwner = iOwner;
    m_iProfile = iProfile;
}

// Geometry

void AssignWid::layoutForMode(int mode)
{
    const QSize fitted = m_picture->showPart(mode, size());
    const int w = fitted.width();
    const int h = fitted.height();
    const int x = std::max(0, (width() - w) / 2);
    m_picture->setGeometry(x, 0, w, h);

    const int k = w * 24 / PictureWidth;
    for (int keyIdx = 0; keyIdx < WideKey; ++keyIdx)
        keyButton(keyIdx)->fixSize(k, k);
    for (int keyIdx = MainKeyCount; keyIdx < KeyCount; ++keyIdx)
        keyButton(keyIdx)->fixSize(w * 52 / PictureWidth, k / 2);
    keyButton(WideKey)->fixSize(w / PictureWidth + 2 * k, k);

    const int side = w * 13 / PictureWidth;
    const int top = h * (mode == Mode::Simple ? 8 : 73) / PictureHeight;
    m_ui->verticalLayout_2->setContentsMargins(x + side, top, side, h * 20 / PictureHeight);
    m_ui->verticalLayout_2->setSpacing(h * 16 / PictureHeight);
    // The picture stands at the top of the board, and so must the keys.
    m_below->changeSize(0, std::max(0, height() - h), QSizePolicy::Minimum, QSizePolicy::Fixed);
    m_ui->gridLayout_2->setHorizontalSpacing(w * 17 / PictureWidth);
    m_ui->gridLayout_2->setVerticalSpacing(h * 5 / PictureHeight);
    m_ui->m_wheelWid->setFixedSize(w * 125 / PictureWidth, h * 5 / PictureHeight + 2 * (k / 2));
    m_ui->m_keyWid->setFixedSize(w * 125 / PictureWidth, w * 125 / PictureWidth);
    m_ui->gridLayout_3->setSpacing(w / PictureWidth);
    m_ui->verticalLayout_2->invalidate();
    updateUpperKeys(mode, store()->getInput(m_iOwner, m_iProfile));
}

void AssignWid::updateUpperKeys(int mode, int input)
{
    const bool isHidden = mode == Mode::Simple &&
                          (input == InputType::GameController || input == InputType::DualAction);
    for (int keyIdx = MainKeyCount; keyIdx < KeyCount; ++keyIdx)
        keyButton(keyIdx)->setVisible(!isHidden);
}

QRegion AssignWid::keyBoardRegion(const QWidget *mainWid) const
{
    return m_picture->outlineIn(mainWid);
}

// Selection

void AssignWid::slotKeySelected(QAbstractButton *pBtn)
{
    emit sigResetCurrKey();
    if (!pBtn->isChecked()) {
        store()->clearCurrentKey(m_iOwner, m_iProfile);
        emit sigCancelKeySelection();
        return;
    }
    const int keyIdx = m_keys->id(pBtn);
    store()->setCurrentKey(m_iOwner, m_iProfile, keyIdx);
    emit sigKeySelectionChanged(keyIdx);
    announce(keyIdx);
}

void AssignWid::announce(int keyIdx)
{
    const VantrixKey *const button = keyButton(keyIdx);
    vantrix_key_mapping record = button->mapping();
    if (record.type == KeyType::DualAction && !isDualAction(record))
        record = plainKey(effectiveCode(record));
    const auto staged = m_dualStage.find(keyIdx);
    const bool isStaged = staged != m_dualStage.end();
    if (isStaged) {
        record = staged->second;
        record.type = KeyType::DualAction;
    }
    emit sigVantrixKeySelected(record);

    vantrix_app_assign app;
    if (!isStaged && store()->getAppAssign(m_iOwner, m_iProfile, keyIdx, &app) &&
        app.appType >= 0) {
        emit sigApplicationSelected(app.appType, app.funcId);
        return;
    }
    vantrix_hotkey_assign hotKey;
    if (!isStaged && store()->getHotKeyAssign(m_iOwner, m_iProfile, keyIdx, &hotKey)) {
        emit sigApplicationAdvSelected(button->fullText());
        return;
    }
    if (isDualAction(record)) {
        const auto inputOf = [keyIdx](ushort code) {
            return inputTypeOfCode(keyIdx, KeyType::DualAction, code);
        };
        emit sigDualActionSelected(inputOf(record.digital.firstAction),
                                   inputOf(record.digital.secondAction), record.digital);
        emit sigDualActionSelectedToAdv(record);
    } else if (record.type == KeyType::Label) {
        emit sigMacroSelected(button->fullText());
    }
}

void AssignWid::announceSelection()
{
    emit sigResetCurrKey();
    if (QAbstractButton *const checked = m_keys->checkedButton())
        announce(m_keys->id(checked));
}

void AssignWid::applyInput(int input)
{
    updateUpperKeys(store()->getMode(m_iOwner, m_iProfile), input);
    announceSelection();
}

void AssignWid::dropSelection()
{
    m_keys->setNoneButtonChecked();
    store()->clearCurrentKey(m_iOwner, m_iProfile);
    emit sigResetCurrKey();
}

// Writing a key

void AssignWid::writeKey(int keyIdx, const vantrix_key_mapping &mapping, Save save)
{
    VantrixKey *const button = keyButton(keyIdx);
    if (!button)
        return;
    vantrix_key_mapping copy = mapping;
    if (keyIdx == BacklightKey && copy.type == KeyType::Plain && copy.code == UnassignedCode)
        copy.code = BacklightKeyCode;
    tellSpecialKeys(button, keyIdx, copy.code);
    button->setMapping(ushort(keyIdx), copy);
    if (save == Save::Yes)
        storeKey(keyIdx, copy);
}

/// Tells the shell of the codes that it has to know of, and gives the button the shell's text.
void AssignWid::tellSpecialKeys(VantrixKey *button, int keyIdx, ushort newCode)
{
    const ushort oldCode = button->mapping().code;
    const int scanNumber = scanOfKeyCode(defaultCodeOfKey(keyIdx));
    if (oldCode == MeridianCode)
        emit deleteMeridianKey(scanNumber);
    if (isPowerModeCode(oldCode) && oldCode != newCode)
        emit deletePowerModeKey(scanNumber);
    QString info;
    if (newCode == MeridianCode)
        emit sigMeridianKeyInfo(info, scanNumber);
    button->setInfo(info);
}

/// Stores a mapping; an extended code goes where such codes are kept.
void AssignWid::storeKey(int keyIdx, vantrix_key_mapping mapping)
{
    if (isExtendedCode(mapping.code)) {
        vantrix_extended_key extended;
        extended.code = mapping.code;
        store()->setExtendedKey(m_iOwner, m_iProfile, keyIdx, &extended);
        mapping.code = UnassignedCode;
    }
    storeMapping(keyIdx, mapping);
    markDirty();
}

void AssignWid::storeMapping(int keyIdx, const vantrix_key_mapping &mapping)
{
    store()->setKeyMapping(m_iOwner, m_iProfile, keyIdx, &mapping);
}

void AssignWid::markDirty()
{
    store()->setProfileDirty(m_iOwner, m_iProfile, true);
}

void AssignWid::clearExtras(int keyIdx)
{
    IVantrixProfileCfg *const cfg = store();
    cfg->delAppAssign(m_iOwner, m_iProfile, keyIdx);
    cfg->delHotKeyAssign(m_iOwner, m_iProfile, keyIdx);
    cfg->delNamedMacroKey(m_iOwner, m_iProfile, keyIdx);
    cfg->delShortcutAssign(m_iOwner, m_iProfile, keyIdx);
    cfg->delExtendedKey(m_iOwner, m_iProfile, keyIdx);
}

void AssignWid::dropStaged(int keyIdx)
{
    m_keyBackup.erase(keyIdx);
    m_dualStage.erase(keyIdx);
}

/// Anything newer than a pending dual action ends it.
void AssignWid::assignKey(int keyIdx, const vantrix_key_mapping &mapping)
{
    dropStaged(keyIdx);
    writeKey(keyIdx, mapping, Save::Yes);
}

/// Makes room for a label, or takes one off.
void AssignWid::clearKeyForLabel(int keyIdx)
{
    clearExtras(keyIdx);
    assignKey(keyIdx, clearedKey());
}

bool AssignWid::hasRoomForMacro()
{
    if (store()->canAddMacroAssign(m_iOwner, m_iProfile))
        return true;
    const QPointer<AssignWid> alive(this);
    MsgBox::warning(this, tr("warning"), tr("Macro assign has reached maximum limit"));
    if (!alive)
        return false;
    // What was picked shows as if it had been assigned, and would be taken off with the next click.
    // The macro list alone keeps what was picked in it.
    const bool isAdvanced = store()->getMode(m_iOwner, m_iProfile) == Mode::Advanced;
    if (isAdvanced || store()->getInput(m_iOwner, m_iProfile) != InputType::Macro)
        announceSelection();
    return false;
}

// Assignments

void AssignWid::slotVantrixKeyAssigned(vantrix_key_mapping key)
{
    int keyIdx = 0;
    if (!selectedButton(&keyIdx))
        return;
    if (key.type == KeyType::DualAction && !isDualAction(key))
        key = clearedKey();
    clearExtras(keyIdx);
    assignKey(keyIdx, key);
    emit sigUpdateVantrixKey(key);
}

void AssignWid::slotApplicationAssigned(int iAppType, int iFuncId)
{
    int keyIdx = 0;
    VantrixKey *const button = selectedButton(&keyIdx);
    if (!button || (iAppType >= 0 && !hasRoomForMacro()))
        return;
    clearKeyForLabel(keyIdx);
    if (iAppType < 0)
        return;
    showAppFunction(button, iAppType, iFuncId);
    storeAppFunction(keyIdx, iAppType, iFuncId);
    warnOfMissingPaths();
}

void AssignWid::showAppFunction(VantrixKey *button, int appType, int funcId)
{
    button->showAppFunction(appType, funcId);
    const auto launch = AppLaunchFuncs().find(appType);
    if (launch != AppLaunchFuncs().end() && launch->second == funcId &&
        !store()->hasAppPath(appType))
        m_missingPaths.push_back(appType);
}

/// A box runs an event loop, so it waits until the board and the store agree again.
void AssignWid::warnOfMissingPaths()
{
    const std::vector<int> missing = std::move(m_missingPaths);
    m_missingPaths.clear();
    const QPointer<AssignWid> alive(this);
    for (const int appType : missing) {
        MsgBox::warning(this, tr("warning"),
                        tr("Fail to find the path of the program.") + QStringLiteral("\r\n") +
                            tr("Please assign it manually:") + appTypeText(appType));
        if (!alive)
            return;
    }
}

void AssignWid::storeAppFunction(int keyIdx, int appType, int funcId)
{
    vantrix_app_assign assign;
    assign.appType = appType;
    assign.funcId = funcId;
    buildAppMacro(appType, funcId, &assign.macro);
    assign.macro.code = defaultCodeOfKey(keyIdx);
    if (isDirectFunc(appType, funcId)) {
        assign.macro.code = 0;
        storeMapping(keyIdx, plainKey(assign.macro.events[0].code));
    }
    store()->setAppAssign(m_iOwner, m_iProfile, keyIdx, &assign);
    markDirty();
}

void AssignWid::slotApplicationAdvAssigned(QString strHotKey, QString strKeyName)
{
    int keyIdx = 0;
    VantrixKey *const button = selectedButton(&keyIdx);
    if (!button || (!strKeyName.isEmpty() && !hasRoomForMacro()))
        return;
    clearKeyForLabel(keyIdx);
    if (strKeyName.isEmpty())
        return;
    button->showHotKey(strHotKey, strKeyName);
    vantrix_hotkey_assign assign;
    assign.hotKey = strHotKey;
    assign.keyName = strKeyName;
    store()->setHotKeyAssign(m_iOwner, m_iProfile, keyIdx, &assign);
    markDirty();
}

// Macros and shortcuts

void AssignWid::slotMacroAssigned(bool bSelected, QString strMacroNo, QString strMacroName,
                                  int iShortcutId)
{
    int keyIdx = 0;
    VantrixKey *const button = selectedButton(&keyIdx);
    if (!button || (bSelected && !hasRoomForMacro()))
        return;
    clearKeyForLabel(keyIdx);
    if (!bSelected)
        return;
    button->showMacro(strMacroNo, strMacroName);
    if (iShortcutId >= 0) {
        vantrix_shortcut_assign assign;
        assign.id = quint8(iShortcutId);
        store()->setShortcutAssign(m_iOwner, m_iProfile, keyIdx, &assign);
    } else {
        store()->setNamedMacroKey(m_iOwner, m_iProfile, strMacroName.toStdString(), keyIdx);
    }
}

void AssignWid::slotAssignedKey(QString strMacroNo, QString strMacroName,
                                std::map<uchar, uchar> assign)
{
    for (const auto &[keyIdx, value] : assign) {
        if (keyButton(keyIdx))
            showMacroLabel(keyIdx, strMacroNo, strMacroName);
    }
}

/// A key whose dual action is pending goes on showing that, and gets its new label back with BACK.
void AssignWid::showMacroLabel(int keyIdx, const QString &text, const QString &toolTip)
{
    const auto pending = m_keyBackup.find(keyIdx);
    if (pending != m_keyBackup.end()) {
        pending->second.mapping.type = KeyType::Label;
        pending->second.label = {InputType::Macro, text, toolTip};
        return;
    }
    keyButton(keyIdx)->showMacro(text, toolTip);
    if (keyIdx == currentKey())
        emit sigMacroSelected(text);
}

void AssignWid::slotRenameMacro(QString strMacroNo, QString strMacroName)
{
    const auto buttons = m_keys->buttons();
    for (QAbstractButton *const button : buttons) {
        auto *const key = static_cast<VantrixKey *>(button);
        if (key->fullText() == strMacroNo)
            key->setLabelToolTip(strMacroName);
    }
    for (auto &entry : m_keyBackup) {
        if (entry.second.label.text == strMacroNo)
            entry.second.label.toolTip = strMacroName;
    }
}

bool AssignWid::removeMacro(const std::string &macroName)
{
    std::map<uchar, uchar> keys;
    if (!store()->getKeysOfMacro(m_iOwner, m_iProfile, macroName, &keys))
        return false;
    for (const auto &entry : keys)
        assignKey(entry.first, clearedKey());
    return keys.count(uchar(m_keys->checkedId())) > 0;
}

void AssignWid::slotUpdateWinShortcutKeys()
{
    std::map<uchar, uchar> shortcuts;
    if (!store()->getShortcutAssigns(m_iOwner, m_iProfile, &shortcuts))
        return;
    const int base = store()->getShortcutBase(m_iOwner, m_iProfile) + 1;
    for (const auto &[keyIdx, shortcutId] : shortcuts) {
        if (!keyButton(keyIdx))
            return;
        showMacroLabel(keyIdx, QLatin1Char('M') + QString::number(base + shortcutId),
                       winShortcutText(shortcutId));
    }
}

bool AssignWid::checkLabels()
{
    bool isSelectedCleared = false;
    IVantrixProfileCfg *const cfg = store();
    std::map<uchar, vantrix_app_assign> apps;
    std::map<uchar, vantrix_hotkey_assign> hotKeys;
    std::map<uchar, uchar> shortcuts;
    std::map<uchar, vantrix_extended_key> extended;
    // A read that fails says nothing about the labels.
    if (!cfg->getAppAssigns(m_iOwner, m_iProfile, &apps) ||
        !cfg->getHotKeyAssigns(m_iOwner, m_iProfile, &hotKeys) ||
        !cfg->getShortcutAssigns(m_iOwner, m_iProfile, &shortcuts) ||
        !cfg->getExtendedKeys(m_iOwner, m_iProfile, &extended))
        return false;
    for (int keyIdx = 0; keyIdx < KeyCount; ++keyIdx) {
        const auto key = uchar(keyIdx);
        const VantrixKey *const button = keyButton(keyIdx);
        if (!button || button->mapping().type != KeyType::Label || apps.count(key) > 0 ||
            hotKeys.count(key) > 0 || shortcuts.count(key) > 0 || extended.count(key) > 0)
            continue;
        assignKey(keyIdx, clearedKey());
        isSelectedCleared |= button->isChecked();
    }
    return isSelectedCleared;
}

// Dual actions in edit

void AssignWid::slotDualActionAssigned(vantrix_key_mapping key)
{
    int keyIdx = 0;
    VantrixKey *const button = selectedButton(&keyIdx);
    if (!button)
        return;
    if (key.digital.firstAction == 0) {
        clearKeyForLabel(keyIdx);
        return;
    }
    m_keyBackup.try_emplace(keyIdx, Backup{button->mapping(), button->label()});
    button->showStagedDualAction(ushort(keyIdx), key);
    m_dualStage[keyIdx] = key;
    markDirty();
}

void AssignWid::slotDualActionDepthChanged(int iDepth)
{
    int keyIdx = 0;
    VantrixKey *const button = selectedButton(&keyIdx);
    if (!button)
        return;
    const auto staged = m_dualStage.find(keyIdx);
    if (staged != m_dualStage.end())
        staged->second.digital.depth = quint8(iDepth);
    if (!isDualAction(button->mapping()))
        return;
    button->setDepth(iDepth);
    const vantrix_key_mapping record =
        m_dualStage.try_emplace(keyIdx, button->mapping()).first->second;
    storeMapping(keyIdx, record);
    markDirty();
    emit sigDualActionSelectedToAdv(record);
}

void AssignWid::slotDualActionApply()
{
    for (auto &[keyIdx, record] : m_dualStage) {
        clearExtras(keyIdx);
        record.type = KeyType::DualAction;
        VantrixKey *const button = keyButton(keyIdx);
        if (!button)
            continue;
        button->showDualAction(record);
        storeMapping(keyIdx, record);
        if (keyIdx == currentKey())
            emit sigDualActionSelectedToAdv(record);
    }
    m_keyBackup.clear();
}

void AssignWid::slotDualActionBack()
{
    std::map<uchar, vantrix_app_assign> apps;
    if (!store()->getAppAssigns(m_iOwner, m_iProfile, &apps))
        return;
    for (const auto &[keyIdx, backup] : m_keyBackup) {
        VantrixKey *const button = keyButton(keyIdx);
        button->setMapping(ushort(keyIdx), backup.mapping);
        const auto app = apps.find(uchar(keyIdx));
        if (app != apps.end())
            button->showAppFunction(app->second.appType, app->second.funcId);
        else if (backup.mapping.type == KeyType::Label)
            button->showLabel(backup.label);
    }
    m_keyBackup.clear();
    m_dualStage.clear();
}

// Presets

void AssignWid::applyPreset(int inputType, int keyboardType)
{
    {
        const StyleHold hold(m_keys);
        if (inputType == InputType::Keyboard)
            applyKeyboardPreset(keyboardType);
        else if (inputType == InputType::GameController)
            applyGamePreset(keyboardType);
        else if (inputType == InputType::Application)
            applyAppPreset(keyboardType);
    }
    markDirty();
    warnOfMissingPaths();
}

void AssignWid::applyKeyboardPreset(int keyboardType)
{
    const auto preset = KeyboardPresets().find(keyboardType);
    if (preset == KeyboardPresets().end())
        return;
    std::vector<vantrix_key_mapping> stored;
    stored.reserve(KeyCount);
    for (int keyIdx = 0; keyIdx < KeyCount; ++keyIdx) {
        const ushort code = preset->second[std::size_t(keyIdx)];
        assignKey(keyIdx, plainKey(code));
        stored.push_back(isExtendedCode(code) ? clearedKey() : plainKey(code));
    }
    store()->setKeyMappings(m_iOwner, m_iProfile, &stored);
}

void AssignWid::applyGamePreset(int keyboardType)
{
    applyKeyboardPreset(0);
    const auto preset = GamePresets().find(keyboardType);
    if (preset == GamePresets().end())
        return;
    for (const auto &[keyIdx, code] : preset->second)
        assignKey(keyIdx, gameKey(code));
}

void AssignWid::applyAppPreset(int keyboardType)
{
    const auto preset = AppPresetKeys().find(keyboardType);
    const auto type = AppPresetType().find(keyboardType);
    if (preset == AppPresetKeys().end() || type == AppPresetType().end())
        return;
    constexpr int firstFunction = 1;
    constexpr int lastFunction = 19;
    for (int keyIdx = 0; keyIdx < KeyCount; ++keyIdx) {
        const ushort entry = preset->second[std::size_t(keyIdx)];
        if (keyIdx < firstFunction || keyIdx > lastFunction) {
            assignKey(keyIdx, plainKey(entry));
            continue;
        }
        assignKey(keyIdx, clearedKey());
        showAppFunction(keyButton(keyIdx), type->second, entry);
        storeAppFunction(keyIdx, type->second, entry);
    }
}

// Showing a profile

void AssignWid::showProfile(int iOwner, int iProfile)
{
    setScope(iOwner, iProfile);
    dropSelection();
    m_keyBackup.clear();
    m_dualStage.clear();
    {
        const StyleHold hold(m_keys);
        loadMappings();
        loadLabels();
        slotUpdateWinShortcutKeys();
        loadExtendedKeys();
    }
    warnOfMissingPaths();
}

void AssignWid::loadMappings()
{
    std::vector<vantrix_key_mapping> mappings;
    if (!store()->getKeyMappings(m_iOwner, m_iProfile, &mappings))
        return;
    for (std::size_t keyIdx = 0; keyIdx < mappings.size(); ++keyIdx)
        writeKey(int(keyIdx), mappings[keyIdx], Save::No);
}

void AssignWid::loadLabels()
{
    std::map<uchar, vantrix_app_assign> apps;
    if (store()->getAppAssigns(m_iOwner, m_iProfile, &apps)) {
        for (const auto &[keyIdx, assign] : apps) {
            if (VantrixKey *const button = keyButton(keyIdx))
                showAppFunction(button, assign.appType, assign.funcId);
        }
    }
    std::map<uchar, vantrix_hotkey_assign> hotKeys;
    if (store()->getHotKeyAssigns(m_iOwner, m_iProfile, &hotKeys)) {
        for (const auto &[keyIdx, assign] : hotKeys) {
            if (VantrixKey *const button = keyButton(keyIdx))
                button->showHotKey(assign.hotKey, assign.keyName);
        }
    }
}

void AssignWid::loadExtendedKeys()
{
    std::map<uchar, vantrix_extended_key> keys;
    if (!store()->getExtendedKeys(m_iOwner, m_iProfile, &keys))
        return;
    for (const auto &[keyIdx, extended] : keys)
        writeKey(keyIdx, plainKey(extended.code), Save::No);
}
