// One growth model program. GROWTH_WOOD says which: Softwood (SWQVL.exe) or Hardwood (HWQVL.exe).
#include "models/exchange.h"

#include <iostream>

int main() {
    return growth::RunModel(growth::Wood::GROWTH_WOOD, std::cout, std::cerr);
}
