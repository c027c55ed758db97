#include "Documents.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>

// bench_document MEGABYTES FILE: a catalogue as a file, for the programs that measure a process of their own.
int main(int argc, char** argv) {
    if (argc != 3)
        return 64;
    std::ofstream file(argv[2], std::ios::binary);
    file << kavor::bench::catalogueOfMegabytes(std::strtoul(argv[1], nullptr, 10));
    file.close();
    if (!file)
        std::fprintf(stderr, "%s: cannot be written\n", argv[2]);
    return file ? 0 : 1;
}
