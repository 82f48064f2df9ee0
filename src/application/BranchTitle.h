#pragma once

#include <QLayout>
#include <QString>
#include <QWidget>

class QPushButton;
class QScrollArea;

/// The part of a text of the catalog that is ever shown: more letters than a line holds would only
/// cost time.
QString shownPart(const QString &text);

/// Makes a folded title of the hot-key browser: its text, and its area hidden.
void setUpTitle(QPushButton *title, QScrollArea *area, const QString &text);

/// Unfolds the area of a title, or folds it again.
void toggleArea(QScrollArea *area);

/// Where Tab stops last in a title and the branches in its layout: what is added there comes next.
template <typename Branch>
QWidget *lastStopIn(QWidget *title, const QLayout *branches)
{
    QLayoutItem *const last = branches->itemAt(branches->count() - 1);
    return last ? static_cast<Branch *>(last->widget())->lastStop() : title;
}
