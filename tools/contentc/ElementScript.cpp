#include "tools/contentc/ElementScript.h"

#include "controls/elements/Element.h"
#include "platform/text/CodePage1253.h"

namespace contentc {

std::string elementScript() {
    std::string script = "export const elements = {\n";
    for (const controls::Element& element : controls::elements()) {
        script.append("  ").append(element.symbol).append(": { number: ");
        script.append(std::to_string(element.number)).append(", name: '");
        script.append(platform::toUtf8(element.greekName)).append("', mass: '");
        script.append(element.mass.digits).append("', isStandard: ");
        script.append(element.hasStandardMass() ? "true" : "false").append(" },\n");
    }
    return script + "};\n";
}

}  // namespace contentc
