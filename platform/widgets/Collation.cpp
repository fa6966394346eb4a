#include "platform/widgets/Collation.h"

namespace platform {

const QCollator& greekOrder() {
    // The order for English sorts Greek letters as Greek dictionaries do, and Latin letters before them, as
    // this platform does. The order for Greek puts Latin letters last.
    static const QCollator order(QLocale(QLocale::English, QLocale::UnitedStates));
    return order;
}

}  // namespace platform
