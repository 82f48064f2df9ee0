#include "panels/KeyboardWid.h"

#include "interfaces/IEnvironment.h"
#include "panels/Keyboard.h"
#include "vocabulary/KeyLegends.h"

#include "ui_KeyboardUi.h"

KeyboardWid::KeyboardWid(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::KeyboardUi>())
{
    m_ui->setupUi(this);
    const int language = IEnvironment::Instance()->getLanguage();
    m_keyboard = new Keyboard(layoutOfLanguage(language), language, m_ui->widget);
    m_ui->m_layout->addWidget(m_keyboard);
    connect(m_keyboard, &Keyboard::sigKeyChanged, this, &KeyboardWid::sigKeyChanged);
}

KeyboardWid::~KeyboardWid() = default;

void KeyboardWid::clearChecked()
{
    m_keyboard->clearChecked();
}

void KeyboardWid::setKeyCapture(bool on)
{
    m_keyboard->setKeyCapture(on);
}

void KeyboardWid::slotVantrixKeySelected(vantrix_key_mapping key)
{
    if (key.type == KeyType::Plain)
        m_keyboard->selectKeyCode(key.code);
}

void KeyboardWid::resizeEvent(QResizeEvent *)
{
    // The width of the keys follows from the height, and a panel may be too narrow for it.
    const QMargins outer = layout()->contentsMargins();
    m_keyboard->setMaximumHeight(
        m_keyboard->heightThatFits(width() - outer.left() - outer.right()));
    layout()->activate();
}
