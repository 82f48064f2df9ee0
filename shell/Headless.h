#pragma once

#include <QString>

class HostServices;
class QTextStream;

/// The whole road without a display, and a look into a store.
class Headless
{
public:
    /// What to walk.
    struct Road
    {
        int profile = 0;
        QString screenshot; ///< file for the picture of the page; empty for none
    };

    Headless() = delete;

    /// Shows the profile, selects key 7, presses the keyboard panel's button for "B", presses
    /// APPLY, and prints the image that the device received. Returns the exit code of a program.
    static int walk(HostServices &services, const Road &road, QTextStream &out, QTextStream &err);
    /// Prints what the store and the device have of a profile.
    static void printProfile(HostServices &services, int profile, QTextStream &out);
};
