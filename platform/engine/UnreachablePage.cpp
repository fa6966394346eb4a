#include "platform/engine/UnreachablePage.h"

namespace platform {

namespace {

constexpr const char16_t* unreachableText =
    uR"(<!DOCTYPE html><html lang="el"><head><meta charset="utf-8"><title>Χωρίς σύνδεση</title><style>
body { margin: 48px auto; max-width: 440px; padding: 0 24px; color: #1c2733; background: #ffffff;
       font: 15px/1.5 "Liberation Sans", sans-serif; }
h1 { color: #1f4e6b; font-size: 22px; }
code { color: #526070; overflow-wrap: anywhere; }
</style></head><body>
<h1>Η σελίδα δεν είναι διαθέσιμη</h1>
<p>Δεν ήταν δυνατό να φορτωθεί αυτή η σελίδα από το δίκτυο:</p>
<p><code>%1</code></p>
<p>Ελέγξτε αν ο υπολογιστής σας είναι συνδεδεμένος στο διαδίκτυο και δοκιμάστε ξανά. Όλα τα άλλα μέρη του
προγράμματος λειτουργούν και χωρίς σύνδεση.</p>
</body></html>)";

}  // namespace

QString unreachablePage(const QUrl& url) {
    return QString::fromUtf16(unreachableText).arg(url.toDisplayString().toHtmlEscaped());
}

}  // namespace platform
