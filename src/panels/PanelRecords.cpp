#include "panels/PanelRecords.h"

#include "interfaces/ButtonGroupEx.h"

#include <QAbstractButton>

vantrix_key_mapping recordOfClick(const ButtonGroupEx *group, QAbstractButton *clicked)
{
    return clicked->isChecked() ? plainKey(ushort(group->id(clicked))) : clearedKey();
}

void checkPlainKey(ButtonGroupEx *group, const vantrix_key_mapping &key)
{
    if (key.type != KeyType::Plain)
        return;
    if (group->button(key.code))
        group->setButtonChecked(key.code, true);
    else
        group->setNoneButtonChecked();
}
