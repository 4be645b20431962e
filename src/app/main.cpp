#include "app/application.h"

int main(int argc, char **argv)
{
    return runKyrGM(
        argc, argv,
        {"/Users/Shared/KT7R4/KT7R4Setting.xml",
         {KYR_HOST_US, KYR_HOST_EUROPE, KYR_HOST_KOREA, KYR_HOST_TAIWAN, KYR_HOST_CHINA}});
}
