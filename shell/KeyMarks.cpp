#include "shell/KeyMarks.h"

#include "shell/ShellStyle.h"

#include <QEvent>
#include <QPainter>

KeyMarks::KeyMarks(QWidget *page) : QWidget(page)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    setObjectName(QStringLiteral("m_keyMarks"));
    setGeometry(page->rect());
    page->installEventFilter(this);
    hide();
}

void KeyMarks::setKeys(const std::set<std::pair<int, int>> &keys, int profile)
{
    m_keys.clear();
    for (const auto &[keyProfile, key] : keys) {
        if (keyProfile == profile)
            m_keys.insert(key);
    }
    setVisible(!m_keys.empty());
    raise();
    update();
}

void KeyMarks::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ShellStyle::warning(), 3));
    for (const int key : m_keys) {
        const auto *button =
            parentWidget()->findChild<QWidget *>(QStringLiteral("key_%1").arg(key));
        if (!button || !button->isVisible())
            continue;
        const QRect place(button->mapTo(parentWidget(), QPoint()), button->size());
        painter.drawRoundedRect(place.adjusted(-2, -2, 2, 2), 6, 6);
    }
}

bool KeyMarks::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    // the keys take their new places after this
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
        QMetaObject::invokeMethod(
            this, [this] { update(); }, Qt::QueuedConnection);
    return false;
}
