#pragma once

#include <QString>

class QPushButton;
class QScrollArea;

/// The part of a text of the catalog that is ever shown: more letters than a line holds would only
/// cost time.
QString shownPart(const QString &text);

/// Makes a folded title of the hot-key browser: its text, and its area hidden.
void setUpTitle(QPushButton *title, QScrollArea *area, const QString &text);

/// Unfolds the area of a title, or folds it again.
void toggleArea(QScrollArea *area);
