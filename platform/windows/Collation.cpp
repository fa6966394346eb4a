#include "platform/windows/Collation.h"

namespace platform {

const QCollator& greekOrder() {
    static const QCollator order(QLocale(QLocale::Greek, QLocale::Greece));
    return order;
}

}  // namespace platform
