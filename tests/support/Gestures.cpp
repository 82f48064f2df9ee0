#include "support/Gestures.h"

#include <QKeyEvent>

QString namesOfChildren(const QObject *root, const QMetaObject &type)
{
    QStringList names;
    const auto children = root->findChildren<QObject *>();
    for (const QObject *object : children) {
        if (object->metaObject()->inherits(&type) && !object->objectName().isEmpty())
            names << object->objectName();
    }
    names.sort();
    return names.join(QStringLiteral(", "));
}

void clickOn(QWidget *widget)
{
    clickOn(widget, widget->rect().center());
}

void clickOn(QWidget *widget, const QPoint &at)
{
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, at);
}

void pressKey(QWidget *widget, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(widget, key, modifiers);
}

void typeInto(QWidget *widget, const QString &text)
{
    QTest::keyClicks(widget, text);
}

void sendNativeKey(QWidget *widget, QEvent::Type type, quint32 scanCode, quint32 virtualKey,
                   bool autoRepeat)
{
    QKeyEvent event(type, 0, Qt::NoModifier, scanCode, virtualKey, 0, QString(), autoRepeat);
    QCoreApplication::sendEvent(widget, &event);
}
