#include "Commands.h"

#include <QCoreApplication>

#include <iostream>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return kavor::ctl::run(argc, argv, std::cout, std::cerr);
}
