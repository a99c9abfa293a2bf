#include "tests/TestMain.h"

std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv)
{
    return std::make_unique<QCoreApplication>(argc, argv);
}

// What others keep to the end on purpose. Leaks of the desk itself are mended, not listed.
extern "C" const char* __lsan_default_suppressions();
const char* __lsan_default_suppressions()
{
    return "";
}
