#include "Commands.h"
#include "base/AtomicFile.h"

#include <QCoreApplication>

#include <iostream>

int main(int argc, char** argv) {
    kavor::atomic_file::survivePassingTheSizeLimit();
    const QCoreApplication application(argc, argv);
    return kavor::ctl::run(argc, argv, std::cout, std::cerr);
}
