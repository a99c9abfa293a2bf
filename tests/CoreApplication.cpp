#include "tests/TestMain.h"

std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv)
{
    return std::make_unique<QCoreApplication>(argc, argv);
}
