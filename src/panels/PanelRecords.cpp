#include "panels/PanelRecords.h"

#include "interfaces/ButtonGroupEx.h"

#include <QAbstractButton>

vantrix_key_mapping recordOfClick(const ButtonGroupEx *group, QAbstractButton *clicked)
{
    return clicked->isChecked() ? plainKey(ushort(group->id(clicked))) : clearedKey();
}

void checkButton(ButtonGroupEx *group, int id)
{
    if (group->button(id))
        group->setButtonChecked(id, true);
    else
        group->setNoneButtonChecked();
}

void checkPlainKey(ButtonGroupEx *group, const vantrix_key_mapping &key)
{
    if (key.type == KeyType::Plain)
        checkButton(group, key.code);
}
