#include "vocabulary/KeyImages.h"

const std::map<ushort, QString> &MediaImages()
{
    // clang-format off
    static const std::map<ushort, QString> images = {
        { 240, QStringLiteral(":/VantrixMap/Media/play_pause")},
        { 241, QStringLiteral(":/VantrixMap/Media/stop")},
        { 242, QStringLiteral(":/VantrixMap/Media/pre_track")},
        { 243, QStringLiteral(":/VantrixMap/Media/next_track")},
        { 244, QStringLiteral(":/VantrixMap/Media/mute")},
        { 245, QStringLiteral(":/VantrixMap/Media/vol_dec")},
        { 246, QStringLiteral(":/VantrixMap/Media/vol_inc")},
    };
    // clang-format on
    return images;
}

const std::map<ushort, QString> &GameHandleImages()
{
    // clang-format off
    static const std::map<ushort, QString> images = {
        { 462, QStringLiteral(":/VantrixMap/GameCtrl/handle/a")},
        { 463, QStringLiteral(":/VantrixMap/GameCtrl/handle/b")},
        { 464, QStringLiteral(":/VantrixMap/GameCtrl/handle/x")},
        { 465, QStringLiteral(":/VantrixMap/GameCtrl/handle/y")},
        { 466, QStringLiteral(":/VantrixMap/GameCtrl/handle/lb")},
        { 467, QStringLiteral(":/VantrixMap/GameCtrl/handle/rb")},
        { 468, QStringLiteral(":/VantrixMap/GameCtrl/handle/back")},
        { 469, QStringLiteral(":/VantrixMap/GameCtrl/handle/start")},
        { 470, QStringLiteral(":/VantrixMap/GameCtrl/handle/logo")},
        { 471, QStringLiteral(":/VantrixMap/GameCtrl/handle/l_r")},
        { 472, QStringLiteral(":/VantrixMap/GameCtrl/handle/l_r")},
        { 222, QStringLiteral(":/VantrixMap/GameCtrl/handle/lt")},
        { 223, QStringLiteral(":/VantrixMap/GameCtrl/handle/rt")},
    };
    // clang-format on
    return images;
}

const std::map<ushort, QString> &GameAssignImages()
{
    // clang-format off
    static const std::map<ushort, QString> images = {
        { 454, QStringLiteral(":/VantrixMap/GameCtrl/assign/d_up_right")},
        {2521, QStringLiteral(":/VantrixMap/GameCtrl/assign/d_up_right")},
        { 455, QStringLiteral(":/VantrixMap/GameCtrl/assign/d_down_right")},
        {2777, QStringLiteral(":/VantrixMap/GameCtrl/assign/d_down_right")},
        { 456, QStringLiteral(":/VantrixMap/GameCtrl/assign/d_down_left")},
        {1753, QStringLiteral(":/VantrixMap/GameCtrl/assign/d_down_left")},
        { 457, QStringLiteral(":/VantrixMap/GameCtrl/assign/d_up_left")},
        {1497, QStringLiteral(":/VantrixMap/GameCtrl/assign/d_up_left")},
        { 458, QStringLiteral(":/VantrixMap/GameCtrl/assign/d_up")},
        { 473, QStringLiteral(":/VantrixMap/GameCtrl/assign/d_up")},
        { 459, QStringLiteral(":/VantrixMap/GameCtrl/assign/d_down")},
        { 729, QStringLiteral(":/VantrixMap/GameCtrl/assign/d_down")},
        { 460, QStringLiteral(":/VantrixMap/GameCtrl/assign/d_left")},
        {1241, QStringLiteral(":/VantrixMap/GameCtrl/assign/d_left")},
        { 461, QStringLiteral(":/VantrixMap/GameCtrl/assign/d_right")},
        {2265, QStringLiteral(":/VantrixMap/GameCtrl/assign/d_right")},
        { 462, QStringLiteral(":/VantrixMap/GameCtrl/assign/a")},
        { 463, QStringLiteral(":/VantrixMap/GameCtrl/assign/b")},
        { 464, QStringLiteral(":/VantrixMap/GameCtrl/assign/x")},
        { 465, QStringLiteral(":/VantrixMap/GameCtrl/assign/y")},
        { 466, QStringLiteral(":/VantrixMap/GameCtrl/assign/lb")},
        { 467, QStringLiteral(":/VantrixMap/GameCtrl/assign/rb")},
        { 468, QStringLiteral(":/VantrixMap/GameCtrl/assign/back")},
        { 469, QStringLiteral(":/VantrixMap/GameCtrl/assign/start")},
        { 470, QStringLiteral(":/VantrixMap/GameCtrl/assign/logo")},
        { 471, QStringLiteral(":/VantrixMap/GameCtrl/assign/ls")},
        { 472, QStringLiteral(":/VantrixMap/GameCtrl/assign/rs")},
        { 731, QStringLiteral(":/VantrixMap/GameCtrl/assign/l_up")},
        { 475, QStringLiteral(":/VantrixMap/GameCtrl/assign/l_down")},
        { 474, QStringLiteral(":/VantrixMap/GameCtrl/assign/l_left")},
        { 730, QStringLiteral(":/VantrixMap/GameCtrl/assign/l_right")},
        { 733, QStringLiteral(":/VantrixMap/GameCtrl/assign/r_up")},
        { 477, QStringLiteral(":/VantrixMap/GameCtrl/assign/r_down")},
        { 476, QStringLiteral(":/VantrixMap/GameCtrl/assign/r_left")},
        { 732, QStringLiteral(":/VantrixMap/GameCtrl/assign/r_right")},
        { 222, QStringLiteral(":/VantrixMap/GameCtrl/assign/lt")},
        { 223, QStringLiteral(":/VantrixMap/GameCtrl/assign/rt")},
    };
    // clang-format on
    return images;
}

QString imageOf(const std::map<ushort, QString> &images, ushort code)
{
    const auto row = images.find(code);
    return row == images.end() ? QString() : row->second;
}
