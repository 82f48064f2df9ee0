#pragma once

/// Pictures of device codes in the resource tree.

#include <QString>

#include <map>

/// Media code to the picture of its function, without a file suffix.
const std::map<ushort, QString> &MediaImages();
/// Controller code to the picture of the control on the drawn controller.
const std::map<ushort, QString> &GameHandleImages();
/// Controller code to the picture on the pad key that holds it.
const std::map<ushort, QString> &GameAssignImages();

/// Row of one of the maps above, empty when there is none.
QString imageOf(const std::map<ushort, QString> &images, ushort code);
