#pragma once

#include <QString>

/// Sheet of an entry of the input selector and of the preset list: `checkedRule` is what stands
/// between the braces of the rule for checked ones.
QString selectorSheet(const QString &checkedRule = QStringLiteral("background:rgb(132,49,155)"));

/// Sheet of a slim scroll bar; the sheet of a panel's box would make it the style's plainest one.
QString scrollBarSheet();
