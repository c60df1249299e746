// Makes the help pages: help_pages SOURCE TARGET.
#include "generator/pages.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: help_pages SOURCE TARGET\n";
        return 2;
    }
    try {
        arbolith::help::MakeHelpFolder(argv[1], argv[2]);
    } catch (const std::exception& failed) {
        std::cerr << failed.what() << '\n';
        return 1;
    }
    return 0;
}
