// The utility with its settings file at the path given, and where one is given with that host for
// every region: a test must not touch the player's own file nor the web.

#include "app/application.h"

int main(int argc, char **argv)
{
    if (argc != 2 && argc != 3)
        return 1;
    RegionHosts hosts;
    if (argc == 3)
        hosts.fill(argv[2]);
    return runKyrGM(argc, argv, {argv[1], hosts});
}
