#include "tools/contentc/CardMakers.h"

#include <algorithm>

#include "controls/elements/Element.h"
#include "formats/DataSetFile.h"
#include "platform/text/CodePage1253.h"
#include "platform/text/Fold.h"
#include "tools/contentc/cards/CompoundCard.h"
#include "tools/contentc/cards/ElementCard.h"
#include "tools/contentc/markdown/Formula.h"
#include "tools/contentc/source/DataMessages.h"
#include "tools/contentc/source/SourceText.h"

namespace contentc {
namespace {

const controls::Element* elementNamed(const std::string& name) {
    const auto found = std::ranges::find_if(
        controls::elements(),
        [&name, folded = platform::fold(platform::fromUtf8(name))](const controls::Element& element) {
            return element.symbol == name || platform::fold(element.greekName) == folded;
        });
    return found == controls::elements().end() ? nullptr : &*found;
}

std::string setFormula(std::string_view formula) { return compileFormula(formula).html; }

formats::DataSet compoundsIn(const std::vector<SourceFile>& dataSets, Diagnostics& diagnostics) {
    const auto file = std::ranges::find(dataSets, "compounds", &SourceFile::stem);
    if (file == dataSets.end()) return {};
    std::string text;
    for (const TextLine& line : readLines(*file, diagnostics)) text += line.text + '\n';
    return formats::decodeDataSet(text).set.value_or(formats::DataSet{});
}

}  // namespace

CardMaker elementCardMaker() {
    return [](const std::string& name, const std::vector<CardRow>& rows, const SourcePlace& place,
              Diagnostics& diagnostics) {
        if (const controls::Element* element = elementNamed(name)) return elementCard(*element, rows);
        diagnostics.error(place, say::noElement, {name});
        return std::string();
    };
}

CardMaker compoundCardMaker(const std::vector<SourceFile>& dataSets, Diagnostics& diagnostics) {
    return [compounds = compoundsIn(dataSets, diagnostics)](const std::string& name,
                                                            const std::vector<CardRow>& rows,
                                                            const SourcePlace& place, Diagnostics& messages) {
        auto data = compoundRows(compounds, name, setFormula);
        if (!data && !name.empty()) messages.error(place, say::noCompound, {name});
        return cardTable(withRowsOfAuthor(data.value_or(std::vector<CardRow>{}), rows));
    };
}

}  // namespace contentc
