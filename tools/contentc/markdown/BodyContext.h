#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tools/contentc/cards/CardTable.h"
#include "tools/contentc/markdown/PageRelations.h"
#include "tools/contentc/source/PageIndex.h"
#include "tools/contentc/source/PictureSizes.h"
#include "tools/contentc/source/TermSource.h"

namespace contentc {

/// Makes the card of an element or a compound with this symbol, formula or name (in UTF-8), with the author's
/// rows. The result is HTML in UTF-8. Mistakes are reported at `place`.
using CardMaker = std::function<std::string(const std::string& name, const std::vector<CardRow>& rows,
                                            const SourcePlace& place, Diagnostics& diagnostics)>;

/// What the body of a page needs to know of the other sources.
struct BodyContext {
    const TermIndex& terms;
    const PageIndex& pages;
    const PictureSizes& pictures;
    CardMaker elementCard;
    CardMaker compoundCard;
    const Content& content;
    const PageRelations& relations;
};

}  // namespace contentc
