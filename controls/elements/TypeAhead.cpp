#include "controls/elements/TypeAhead.h"

#include "controls/elements/ElementSearch.h"

namespace controls {

int TypeAhead::type(std::string_view characters, std::int64_t milliseconds) {
    if (milliseconds - last_ > pauseMilliseconds) typed_.clear();
    last_ = milliseconds;
    typed_ += characters;
    int found = findElementByStart(typed_);
    if (found == 0) {
        typed_ = characters;
        found = findElementByStart(typed_);
    }
    return found;
}

}  // namespace controls
