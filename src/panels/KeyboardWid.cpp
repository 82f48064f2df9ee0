#include "panels/KeyboardWid.h"

#include "interfaces/IEnvironment.h"
#include "panels/Keyboard.h"
#include "vocabulary/KeyLegends.h"

#include "ui_KeyboardUi.h"

#include <algorithm>

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

QSize KeyboardWid::minimumSizeHint() const
{
    // The keyboard's size follows from the panel's, so it must not keep the panel from shrinking.
    return {1, 1};
}

void KeyboardWid::resizeEvent(QResizeEvent *)
{
    const QSize room = contentsRect().marginsRemoved(layout()->contentsMargins()).size();
    // The width of the keys follows from the height, and a panel may be too narrow for it.
    const int height = std::clamp(room.height(), 0, m_keyboard->heightThatFits(room.width()));
    const int width = m_keyboard->widthAtHeight(height);
    m_keyboard->setFixedSize(width, height);
    m_ui->widget->setFixedWidth(width);
    layout()->activate();
}
