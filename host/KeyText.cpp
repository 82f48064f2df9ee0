#include "host/KeyText.h"

#include "interfaces/IEnvironment.h"
#include "vocabulary/AppTables.h"
#include "vocabulary/KeyCodes.h"
#include "vocabulary/KeyLegends.h"

namespace {

int language()
{
    return IEnvironment::isInstalled() ? IEnvironment::Instance()->getLanguage() : 0;
}

QString oneLine(QString text)
{
    text.replace(QLatin1String("&&"), QLatin1String("&"));
    return text.simplified();
}

} // namespace

QString KeyText::codeName(ushort code)
{
    const int scan = scanOfKeyCode(code);
    QString legend = scan ? oneLine(keyLegend(scan, language())) : QString();
    if (!legend.isEmpty())
        return legend;
    if (!qstrcmp(keyFunctionName(code), "UNKNOWN KEY"))
        return tr("CODE %1").arg(code);
    return oneLine(keyFunctionText(code));
}

QString KeyText::dualName(const vantrix_presso_digital &digital)
{
    QString first = codeName(digital.firstAction);
    if (ushort(digital.secondAction) == 0)
        return first;
    const QString second = codeName(digital.secondAction);
    QString sequence = first + QLatin1String(" > ") + second;
    if (digital.dualType == DualType::Toggle)
        sequence += QLatin1String(" > ") + first;
    else if (digital.dualType == DualType::Combine)
        sequence = QStringLiteral("%1 > %1 + %2").arg(first, second);
    return tr("%1 at %2%").arg(sequence).arg(digital.depth);
}

QString KeyText::extraName(const KeyContent &key)
{
    if (key.app) {
        const int type = key.app->appType;
        const int function = key.app->funcId;
        return QStringLiteral("%1: %2").arg(appTypeText(type), appFunctionText(type, function));
    }
    if (key.hotKey)
        return QStringLiteral("%1 (%2)").arg(key.hotKey->keyName, key.hotKey->hotKey);
    if (key.shortcut)
        return winShortcutText(key.shortcut->id);
    if (key.macroName)
        return *key.macroName;
    return key.extended ? codeName(key.extended->code) : QString();
}

QString KeyText::functionName(int keyIdx, const KeyContent &key)
{
    QString extra = extraName(key);
    if (!extra.isEmpty())
        return extra;
    if (isDualAction(key.mapping))
        return dualName(key.mapping.digital);
    if (isCleared(keyIdx, key))
        return inputTypeText(InputType::Unassigned);
    if (inputType(keyIdx, key) == InputType::Disabled)
        return inputTypeText(InputType::Disabled);
    return codeName(effectiveCode(key.mapping));
}

int KeyText::inputType(int keyIdx, const KeyContent &key)
{
    if (key.app || key.hotKey)
        return InputType::Application;
    if (key.shortcut || key.macroName)
        return InputType::Macro;
    if (isDualAction(key.mapping))
        return InputType::DualAction;
    const ushort code = key.extended ? ushort(key.extended->code) : effectiveCode(key.mapping);
    return inputTypeOfCode(keyIdx, char(key.mapping.type), code);
}

bool KeyText::isCleared(int keyIdx, const KeyContent &key)
{
    const ushort code = effectiveCode(key.mapping);
    return inputType(keyIdx, key) == InputType::Unassigned && code != defaultCodeOfKey(keyIdx);
}
