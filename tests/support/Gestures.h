#pragma once

#include <QtTest>

#include <QWidget>

/// Names of all children of a type, for the message of a test that did not find one.
QString namesOfChildren(const QObject *root, const QMetaObject &type);

/// The child of that type and name; ends the test program with the names there are when it is
/// missing.
template <typename T>
T *child(const QObject *root, const QString &name)
{
    if (T *const found = root->findChild<T *>(name))
        return found;
    qFatal("no %s named \"%s\" under %s; there are: %s", T::staticMetaObject.className(),
           qPrintable(name), root->metaObject()->className(),
           qPrintable(namesOfChildren(root, T::staticMetaObject)));
    return nullptr;
}

/// A left click in the middle of a widget, or at a point of it.
void clickOn(QWidget *widget);
void clickOn(QWidget *widget, const QPoint &at);
/// A key pressed and released on a widget.
void pressKey(QWidget *widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// A text typed letter by letter.
void typeInto(QWidget *widget, const QString &text);
/// Press or release of a key as the system would send it in Windows numbering.
void sendNativeKey(QWidget *widget, QEvent::Type type, quint32 scanCode, quint32 virtualKey,
                   bool autoRepeat = false);
