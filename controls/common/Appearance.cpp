#include "controls/common/Appearance.h"

#include <QFontMetrics>
#include <array>

namespace controls::appearance {

namespace {

constexpr int narrowedPercent = 84;

QFont narrowed(QFont font) {
    font.setStretch(narrowedPercent);
    return font;
}

// In the order of the families.
constexpr std::array<GroupColors, familyCount> colors{{
    {{0xF7, 0xCD, 0xBE}, {0xC2, 0x5B, 0x35}},
    {{0xFA, 0xE0, 0xB4}, {0xB9, 0x7A, 0x10}},
    {{0xCF, 0xE1, 0xED}, {0x3A, 0x7A, 0xA0}},
    {{0xE4, 0xD5, 0xEF}, {0x80, 0x56, 0xA6}},
    {{0xF3, 0xD0, 0xE2}, {0xB2, 0x4A, 0x82}},
    {{0xD6, 0xDE, 0xE0}, {0x5C, 0x70, 0x78}},
    {{0xD3, 0xE7, 0xC4}, {0x5A, 0x8A, 0x32}},
    {{0xFB, 0xF1, 0xB0}, {0x9A, 0x86, 0x08}},
    {{0xC2, 0xE9, 0xE0}, {0x1F, 0x86, 0x78}},
    {{0xCD, 0xD4, 0xF4}, {0x4C, 0x5F, 0xBE}},
}};

struct NamedColor {
    const char* name;
    QColor color;
};

// Colours that style sheets name. No name is the beginning of another.
constexpr std::array<NamedColor, 12> namedColors{{{"@paper", paper},
                                                  {"@ground", ground},
                                                  {"@text", text},
                                                  {"@muted", muted},
                                                  {"@line", line},
                                                  {"@deep", deep},
                                                  {"@accent", accent},
                                                  {"@warm", warm},
                                                  {"@selected", selected},
                                                  {"@frame", frame},
                                                  {"@disabled", disabled},
                                                  {"@handle", handle}}};

}  // namespace

QString withColors(const char* styleSheet) {
    QString sheet = QString::fromLatin1(styleSheet);
    for (const auto& [name, color] : namedColors) sheet.replace(QLatin1String(name), color.name());
    return sheet;
}

GroupColors familyColors(Family family) { return colors[static_cast<std::size_t>(family)]; }

QFont font(int pixels, QFont::Weight weight) {
    QFont font(QStringLiteral("Liberation Sans"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

std::optional<QFont> fittingFont(const QString& words, int width, int pixels, int minPixels,
                                 QFont::Weight weight) {
    const auto fits = [&](const QFont& tried) {
        return QFontMetrics(tried).horizontalAdvance(words) <= width;
    };
    for (int size = pixels; size >= minPixels; --size) {
        if (QFont usual = font(size, weight); fits(usual)) return usual;
        // One pixel smaller is better than narrowed.
        if (size > minPixels && fits(font(size - 1, weight))) return font(size - 1, weight);
        if (QFont narrow = narrowed(font(size, weight)); fits(narrow)) return narrow;
    }
    return std::nullopt;
}

}  // namespace controls::appearance
