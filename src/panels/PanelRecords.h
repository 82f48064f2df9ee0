#pragma once

#include "core/records.h"

class ButtonGroupEx;
class QAbstractButton;

/// What a click on a button of a panel assigns, the buttons' ids being device codes: a record of
/// `type` 0 with the button's code, or 255 when the click unchecked it.
vantrix_key_mapping recordOfClick(const ButtonGroupEx *group, QAbstractButton *clicked);

/// Checks the button of an id, or none when there is no such button.
void checkButton(ButtonGroupEx *group, int id);

/// Checks the button that stands for what a pad key does, or none when there is no such button.
/// A record of another `type` than 0 changes nothing.
void checkPlainKey(ButtonGroupEx *group, const vantrix_key_mapping &key);
