#pragma once

#include <QPushButton>

/// A button with a text and an object name that calls a slot of its owner. The parent owns it.
template <typename Owner>
QPushButton *namedButton(QWidget *parent, const char *name, const QString &text, Owner *owner,
                         void (Owner::*slot)())
{
    auto *const made = new QPushButton(text, parent);
    made->setObjectName(QLatin1String(name));
    QObject::connect(made, &QPushButton::clicked, owner, slot);
    return made;
}
