#pragma once

#include "interfaces/ButtonGroupEx.h"

#include <QAbstractButton>
#include <QtTest>

/// Code of a button and its place on the panel.
struct Place
{
    int code;
    QRect rect;
};
using Places = QVector<Place>;
Q_DECLARE_METATYPE(Places)

/// Fails unless the group has exactly these buttons at these places, all inside the panel.
inline void comparePlaces(const QWidget &panel, const ButtonGroupEx *group, const Places &places)
{
    QCOMPARE(group->buttons().size(), places.size());
    for (const Place &place : places) {
        const QAbstractButton *const button = group->button(place.code);
        QVERIFY2(button, qPrintable(QString::number(place.code)));
        const QString message =
            QStringLiteral("%1 stands at %2, %3").arg(place.code).arg(button->x()).arg(button->y());
        QVERIFY2(button->geometry() == place.rect, qPrintable(message));
        QVERIFY2(panel.rect().contains(place.rect), qPrintable(QString::number(place.code)));
    }
}
