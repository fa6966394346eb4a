#include "controls/periodic/model/TableView.h"

#include <algorithm>
#include <array>

#include "controls/periodic/model/QuantityScale.h"
#include "platform/text/GreekLiteral.h"

namespace controls::periodic {

namespace {

using namespace platform::literals;

constexpr std::array<std::string_view, viewCount> names{
    "Οικογένειες"_gr,    "Μέταλλα – αμέταλλα"_gr,  "Κατάσταση"_gr, "Ηλεκτραρνητικότητα"_gr,
    "Ατομική ακτίνα"_gr, "Ιοντισμός"_gr,           "Πυκνότητα"_gr, "Τήξη"_gr,
    "Βρασμός"_gr,        "Ανακάλυψη"_gr,           "Αφθονία"_gr,   "Τομείς"_gr,
    "Ομάδες"_gr,         "Ηλεκτρονιοσυγγένεια"_gr, "Ακτίνα vdW"_gr};

constexpr std::array<std::optional<Quantity>, viewCount> quantities{std::nullopt,
                                                                    std::nullopt,
                                                                    std::nullopt,
                                                                    Quantity::electronegativity,
                                                                    Quantity::covalentRadius,
                                                                    Quantity::ionisation,
                                                                    Quantity::density,
                                                                    Quantity::melting,
                                                                    Quantity::boiling,
                                                                    Quantity::discovery,
                                                                    Quantity::crust,
                                                                    std::nullopt,
                                                                    std::nullopt,
                                                                    Quantity::electronAffinity,
                                                                    Quantity::vanDerWaalsRadius};

}  // namespace

std::optional<Quantity> quantityOf(TableView view) { return quantities[static_cast<std::size_t>(view)]; }

bool hasOtherScale(TableView view) {
    const auto quantity = quantityOf(view);
    return quantity && hasBothScales(*quantity);
}

TableView viewBeside(TableView view, int places) {
    const auto place = static_cast<int>(std::ranges::find(viewOrder, view) - viewOrder.begin());
    return viewOrder[static_cast<std::size_t>((place + places + viewCount) % viewCount)];
}

std::string_view viewName(TableView view) { return names[static_cast<std::size_t>(view)]; }

}  // namespace controls::periodic
