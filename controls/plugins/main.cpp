#include <cstdio>
#include <string>

#include "controls/elements/Element.h"
#include "platform/text/CodePage1253.h"

/// Writes the elements' Greek names by symbol, in the order of their numbers, as a script for viewer pages.
int main() {
    std::string script = "'use strict';\nconst elementNames = {\n";
    for (const controls::Element& element : controls::elements()) {
        script += "  " + std::string(element.symbol) + ": '" + platform::toUtf8(element.greekName) + "',\n";
    }
    script += "};\n";
    return std::fputs(script.c_str(), stdout) < 0 ? 1 : 0;
}
