#pragma once

#include <QString>

/// Texts that hold names which people gave to profiles, macros and files, made such that Qt shows
/// them letter by letter.
namespace GivenText {

/// For buttons and actions: no `&` marks a shortcut.
QString forButton(QString text);
/// For tool tips: nothing is markup.
QString forTip(const QString &text);

} // namespace GivenText
