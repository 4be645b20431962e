// The utility with its settings file at the path given: a test must not touch the player's own.

#include "app/application.h"

int main(int argc, char **argv)
{
    return argc == 2 ? runKyrGM(argc, argv, argv[1]) : 1;
}
