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
    m_keyboard->setObjectName(QStringLiteral("m_keyboard"));
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

void KeyboardWid::setCoveredCorners(const QSize &left, const QSize &right)
{
    const QSize covered = left.expandedTo(right);
    if (covered == m_coveredCorner)
        return;
    m_coveredCorner = covered;
    fitKeyboard();
}

void KeyboardWid::resizeEvent(QResizeEvent *)
{
    fitKeyboard();
}

/// Between the covered corners or above them, whichever leaves more. The width of the keys follows
/// from the height, and a panel may be too narrow for it.
void KeyboardWid::fitKeyboard()
{
    QMargins margins = layout()->contentsMargins();
    margins.setBottom(margins.top());
    const QSize room = contentsRect().marginsRemoved(margins).size();
    const auto fitting = [this](int width, int height) {
        return std::clamp(height, 0, m_keyboard->heightThatFits(width));
    };
    const int between = fitting(room.width() - 2 * m_coveredCorner.width(), room.height());
    const int above = fitting(room.width(), std::max(0, room.height() - m_coveredCorner.height()));
    if (above > between)
        margins.setBottom(margins.top() + m_coveredCorner.height());

    layout()->setContentsMargins(margins);
    const int height = std::max(between, above);
    const int width = m_keyboard->widthAtHeight(height);
    m_keyboard->setFixedSize(width, height);
    m_ui->widget->setFixedWidth(width);
    layout()->activate();
}
