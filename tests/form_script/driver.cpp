#include "form_script/driver.h"

namespace arbolith {

void Driver::Tick(Timer& timer) {
    UserActions(timer.Owner().GetApplication()).Tick(timer);
}

}  // namespace arbolith
