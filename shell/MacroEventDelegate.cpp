#include "shell/MacroEventDelegate.h"

#include "shell/KeyCombo.h"
#include "shell/MacroEventModel.h"
#include "shell/MacroRecorder.h"

#include <QSpinBox>

QWidget *MacroEventDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                          const QModelIndex &index) const
{
    if (index.column() == MacroEventModel::KeyColumn)
        return new KeyCombo(parent);
    if (index.column() == MacroEventModel::ActionColumn) {
        auto *const combo = new QComboBox(parent);
        combo->addItem(tr("release"), 0);
        combo->addItem(tr("press"), 1);
        return combo;
    }
    auto *const spin = new QSpinBox(parent);
    spin->setRange(0, MacroRecorder::MaxDelay);
    spin->setSuffix(tr(" ms"));
    return spin;
}

void MacroEventDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const int value = index.data(Qt::EditRole).toInt();
    if (auto *const combo = qobject_cast<QComboBox *>(editor))
        combo->setCurrentIndex(combo->findData(value));
    else if (auto *const spin = qobject_cast<QSpinBox *>(editor))
        spin->setValue(value);
}

void MacroEventDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                      const QModelIndex &index) const
{
    if (auto *const keys = qobject_cast<KeyCombo *>(editor))
        model->setData(index, keys->code() ? QVariant(keys->code()) : QVariant(), Qt::EditRole);
    else if (auto *const combo = qobject_cast<QComboBox *>(editor))
        model->setData(index, combo->currentData(), Qt::EditRole);
    else if (auto *const spin = qobject_cast<QSpinBox *>(editor))
        model->setData(index, spin->value(), Qt::EditRole);
}
