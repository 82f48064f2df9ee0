#pragma once

#include <QString>

/// File of a function's picture, with its suffix, so that Qt finds the double-resolution file
/// beside it; empty when the function has none.
QString appPicture(int appType, int funcId);
