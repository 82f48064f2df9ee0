#include "panels/FunctionWid.h"

#include "interfaces/ButtonGroupEx.h"
#include "panels/PanelRecords.h"
#include "vocabulary/KeyCodes.h"

#include <QAbstractButton>

FunctionWid::FunctionWid(QWidget *parent) : QWidget(parent), m_group(new ButtonGroupEx(this)) {}

void FunctionWid::clearChecked()
{
    m_group->setNoneButtonChecked();
}

void FunctionWid::slotVantrixKeySelected(vantrix_key_mapping key)
{
    checkPlainKey(m_group, key);
}

void FunctionWid::addFunction(QAbstractButton *button, ushort code)
{
    button->setCheckable(true);
    m_group->addButton(button, code);
}

ButtonGroupEx *FunctionWid::group() const
{
    return m_group;
}

QString functionSheet(int inputType)
{
    QColor color = inputColor(inputType);
    color.setAlpha(100);
    return QStringLiteral("QPushButton{background:transparent;color:white;border:1px solid white;"
                          "min-height:30px;}:hover{background:rgba(255,255,255,50);}"
                          ":checked{background:") +
           color.name(QColor::HexArgb) + QStringLiteral(";}");
}
