#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace controls {

/// The families of elements, in the order of the legend.
enum class Family : std::uint8_t {
    alkaliMetal,
    alkalineEarth,
    transition,
    lanthanide,
    actinide,
    postTransition,
    metalloid,
    nonmetal,
    halogen,
    nobleGas
};
inline constexpr int familyCount = 10;

/// The subshell that is filled last.
enum class Block : std::uint8_t { s, p, d, f };

/// State of matter.
enum class Matter : std::uint8_t { solid, liquid, gas, unknown };

/// A measured value, written with its significant digits, such as "20.180"; empty when it is not known.
struct Figure {
    std::string_view digits;  ///< decimal digits with at most one point

    constexpr bool known() const { return !digits.empty(); }
    std::optional<double> value() const;
    /// How many digits stand after the point.
    int decimals() const;
    /// The digits with the decimal comma of Greek; empty when the value is not known.
    std::string withComma() const;
};

/// The year of discovery of an element that was known in antiquity.
inline constexpr std::int16_t antiquity = 0;

/// 25 °C in K.
inline constexpr double roomTemperature = 298.15;
inline constexpr double zeroCelsius = 273.15;

/// The last element whose electron configuration has been measured; those of later ones are calculated.
inline constexpr int lastMeasuredConfiguration = 105;

/// One chemical element. Texts are in code page 1253.
struct Element {
    int number;  ///< atomic number, 1 to 118
    std::string_view symbol;
    std::string_view greekName;
    std::string_view englishName;
    Family family;
    Figure mass;               ///< relative atomic mass; or a mass number, see hasStandardMass
    Figure meltingPoint;       ///< K
    Figure boilingPoint;       ///< K, or the point of sublimation, see sublimes
    Figure density;            ///< g/cm³: solids and liquids near 20 °C, gases at 0 °C and one atmosphere
    Figure electronegativity;  ///< Pauling's scale
    Figure ionisation;         ///< first ionisation energy, eV
    Figure covalentRadius;     ///< pm
    Figure crust;              ///< abundance in the Earth's crust, mg/kg
    Figure affinity;           ///< electron affinity, eV; 0 when the atom binds no further electron
    Figure vanDerWaalsRadius;  ///< pm
    /// The symbol of the noble gas with the inner electrons, and then the other subshells as the source
    /// orders them, such as "Ar 3d6 4s2".
    std::string_view configuration;
    /// The usual oxidation numbers in ascending order, such as "-1 +1"; empty when they are not known.
    std::string_view oxidationNumbers;
    std::int16_t discovered;  ///< year, or `antiquity`

    /// 1 to 7.
    int period() const;
    /// 1 to 18, or 0 for lanthanides and actinides, which have no group.
    int group() const;
    Block block() const;
    /// Whether it turns from solid into gas at one atmosphere.
    bool sublimes() const;
    /// Whether it never melts at one atmosphere; `meltingPoint` is then one under pressure.
    bool meltsUnderPressureOnly() const;
    /// The state at one atmosphere; unknown when it depends on a melting or boiling point that is not known.
    Matter matterAt(double kelvin) const;
    /// The state at 25 °C.
    Matter matter() const { return matterAt(roomTemperature); }
    /// Whether `configuration` was calculated and not measured.
    bool hasCalculatedConfiguration() const { return number > lastMeasuredConfiguration; }
    /// False for an element without a fixed mixture of isotopes in nature. Its `mass` is the mass number of
    /// its longest-lived isotope.
    bool hasStandardMass() const { return mass.decimals() > 0; }
    /// The relative atomic mass with decimal comma, or the mass number in brackets.
    std::string massText() const;
    /// The usual oxidation numbers, such as "-1, +1", with hyphens as minus signs.
    std::string oxidationText() const;
};

inline constexpr int elementCount = 118;

/// All elements by atomic number.
std::span<const Element, elementCount> elements();

/// The element with an atomic number, or null outside 1 to 118.
const Element* findElement(int number);

/// The Greek name of a family.
std::string_view familyName(Family family);

/// The family with a code of 1 to 10, in the order of the legend; nothing for another code.
std::optional<Family> familyOfCode(int code);
constexpr int familyCode(Family family) { return static_cast<int>(family) + 1; }

}  // namespace controls
