#include "controls/periodic/model/TableView.h"

#include <array>

#include "platform/text/GreekLiteral.h"

namespace controls::periodic {

namespace {

using namespace platform::literals;

constexpr std::array<std::string_view, viewCount> names{
    "Οικογένειες"_gr,    "Μέταλλα – αμέταλλα"_gr, "Κατάσταση"_gr, "Ηλεκτραρνητικότητα"_gr,
    "Ατομική ακτίνα"_gr, "Ιοντισμός"_gr,          "Πυκνότητα"_gr, "Τήξη"_gr,
    "Βρασμός"_gr,        "Ανακάλυψη"_gr,          "Αφθονία"_gr};

}  // namespace

std::string_view viewName(TableView view) { return names[static_cast<std::size_t>(view)]; }

}  // namespace controls::periodic
