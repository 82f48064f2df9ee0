#include "shell/KeyTitle.h"

#include "host/KeyText.h"
#include "vocabulary/KeyCodes.h"

QString KeyTitle::of(int keyIdx)
{
    return tr("Key %1").arg(keyIdx);
}

QString KeyTitle::withLegend(int keyIdx)
{
    return tr("Key %1 (%2)").arg(keyIdx).arg(KeyText::codeName(defaultCodeOfKey(keyIdx)));
}

QString KeyTitle::of(const std::vector<int> &keys)
{
    if (keys.size() == 1)
        return of(keys.front());
    QStringList numbers;
    for (const int key : keys)
        numbers << QString::number(key);
    const QString last = numbers.isEmpty() ? QString() : numbers.takeLast();
    return tr("Keys %1 and %2").arg(numbers.join(QLatin1String(", ")), last);
}
