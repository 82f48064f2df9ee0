#include "shell/KeyCombo.h"

#include "shell/MacroEventModel.h"

#include <QCompleter>

KeyCombo::KeyCombo(QWidget *parent) : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setMaxVisibleItems(16);
    setAccessibleName(tr("Key"));
    fill();
    completer()->setFilterMode(Qt::MatchContains);
    completer()->setCompletionMode(QCompleter::PopupCompletion);
}

int KeyCombo::code() const
{
    const int row = findText(currentText().trimmed(), Qt::MatchFixedString);
    return row < 0 ? 0 : itemData(row).toInt();
}

void KeyCombo::fill()
{
    const QVariant chosen = currentData();
    clear();
    for (const ushort code : MacroEventModel::codes())
        addItem(MacroEventModel::keyName(code), code);
    setCurrentIndex(qMax(0, findData(chosen)));
}
