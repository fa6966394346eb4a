#include "platform/widgets/Collation.h"

namespace platform {

const QCollator& greekOrder() {
    // The common order has Greek letters as Greek dictionaries do, and Latin ones before them as this
    // platform does; that of the Greek language has them after.
    static const QCollator order(QLocale(QLocale::English, QLocale::UnitedStates));
    return order;
}

}  // namespace platform
