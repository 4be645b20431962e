#include "app/application.h"

int main(int argc, char **argv)
{
    return runKyrGM(argc, argv, "/Users/Shared/KT7R4/KT7R4Setting.xml");
}
