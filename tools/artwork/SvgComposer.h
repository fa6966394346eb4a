#pragma once

#include <QByteArray>
#include <QString>

#include "platform/base/Result.h"
#include "tools/artwork/Manifest.h"

namespace artwork {

/// Turns an artwork source into one self-contained SVG Tiny document.
///
/// Two things are resolved, both ordinary SVG 2 that browsers and editors know as well:
/// - `<use xlink:href="../pictograms/react.svg" x y width height>` becomes the contents of that file, scaled
/// from
///   its view box; `data-colours="SET"` on it draws them in another colour set;
/// - `var(--name)` in an attribute becomes the colour of that name.
class SvgComposer {
  public:
    /// `colours` names the set laid over "base"; empty for "base" alone.
    SvgComposer(const Palette& palette, QString colours);

    /// The composed document of the file `path`.
    platform::Result<QByteArray> compose(const QString& path) const;

  private:
    const Palette& palette_;
    QString colours_;
};

}  // namespace artwork
