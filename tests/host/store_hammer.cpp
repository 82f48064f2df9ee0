// Works on a store until it is killed. Each turn changes many rows; the number of the turn is
// written to the standard output once the turn is said to be saved.
//
// store_hammer FILE FIRST_TURN

#include "HammerTurn.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 3)
        return 2;
    ProfileStore store(QString::fromLocal8Bit(argv[1]));
    for (int turn = QByteArray(argv[2]).toInt();; ++turn) {
        hammerTurn(store, turn);
        if (!store.flush() || !store.messages().isEmpty())
            return 1;
        std::printf("%d\n", turn);
        std::fflush(stdout);
    }
}
