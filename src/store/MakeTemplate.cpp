// make_template <file>: writes the empty database of the current version. Run at build time.
#include "store/Template.h"

#include <QCoreApplication>
#include <cstdio>
#include <exception>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: make_template FILE\n", stderr);
        return 2;
    }
    try {
        CreateTemplate(QString::fromLocal8Bit(argv[1]));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_template: %s\n", error.what());
        return 1;
    }
    return 0;
}
