#include <QWidget>
#include <algorithm>
#include <memory>
#include <string>

#include "controls/dataanalyser/AnalyserComponent.h"
#include "controls/molctrl/MoleculeController.h"
#include "controls/periodic/PeriodicComponent.h"
#include "controls/select/SelectComponent.h"
#include "controls/zoom/MoleculeZoom.h"
#include "tests/controls/RecordingSite.h"

/// Each component has the operations of its interface and refuses all other calls.
namespace controls {
namespace {

using platform::InvokeKind;
using platform::OperationInfo;
using platform::TypeCode;
using platform::Variant;

constexpr InvokeKind kinds[] = {InvokeKind::method, InvokeKind::propertyGet, InvokeKind::propertyPut};

struct Offer {
    const char* component;
    platform::ComponentFactory create;
    /// A line for each operation: id, kind, name, types of the arguments.
    const char* operations;
};

const Offer offers[] = {
    {"periodic table", periodic::createPeriodicComponent,
     "1 get Version\n2 call SetDataFolder text\n3 call Redraw\n4 call GetStateA\n5 call GetStateB\n"
     "6 call SetState I4 I4\n"},
    {"browse selection", select::createSelectComponent,
     "1 get Version\n2 call GetPageTitle I4\n3 call Initialise I2 text I4\n4 call GetItemTitle I4\n"
     "5 call SetSection I2\n6 call ShowItem I4 I4 BOOL\n7 call GetAuxHandle\n8 call GetEditWindow\n"},
    {"data analyser", dataanalyser::createAnalyserComponent,
     "1 get Version\n2 get ViewMode\n2 put ViewMode I2\n3 get Option3\n3 put Option3 I2\n4 get Option4\n"
     "4 put Option4 I4\n5 get Flag5\n5 put Flag5 BOOL\n6 get Flag6\n6 put Flag6 BOOL\n7 get Option7\n"
     "7 put Option7 I2\n8 get Value8\n9 get Value9\n10 call Initialise I4 text\n11 call CopyAllData\n"
     "12 call CopySelection\n13 call GetMode\n14 call GetEntryCountRef\n15 call SetMode I2\n"
     "16 call SetEntryCountRef I4\n17 call GetValue11\n18 call SetValues I4 I2 I4\n20 call SetEntry I2 I4\n"
     "21 call GetEntry I2\n22 call CopyGraph\n23 call PrintView\n"},
    {"molecule controller", molctrl::createMoleculeController, "1 get Version\n"},
    {"molecule zoom", zoom::createMoleculeZoom, "1 call GetVersion\n"},
};

/// A type of arguments, its word in the lines, and a value of it.
struct ArgumentType {
    TypeCode code;
    const char* word;
    Variant value;
};

const ArgumentType argumentTypes[] = {{TypeCode::i2, "I2", Variant(std::int16_t{1})},
                                      {TypeCode::i4, "I4", Variant(std::int32_t{1})},
                                      {TypeCode::boolean, "BOOL", Variant(true)},
                                      {TypeCode::text, "text", Variant(std::string("x"))}};

const ArgumentType& typeOf(TypeCode code) {
    const auto* found = std::ranges::find(argumentTypes, code, &ArgumentType::code);
    if (found == std::end(argumentTypes)) std::abort();
    return *found;
}

std::string lineOf(const OperationInfo& operation) {
    std::string line = std::to_string(operation.dispid);
    line += operation.kind == InvokeKind::method        ? " call "
            : operation.kind == InvokeKind::propertyGet ? " get "
                                                        : " put ";
    line += operation.name;
    for (const TypeCode type : operation.arguments) line += std::string(" ") + typeOf(type).word;
    return line + '\n';
}

std::vector<Variant> fitting(const OperationInfo& operation) {
    std::vector<Variant> values;
    for (const TypeCode type : operation.arguments) values.push_back(typeOf(type).value);
    return values;
}

void refusesMisfits(platform::Component& component, const OperationInfo& operation) {
    SCOPED_TRACE(operation.name);
    const auto refuses = [&](const std::vector<Variant>& arguments) {
        EXPECT_FALSE(component.invoke(operation.dispid, operation.kind, arguments));
    };
    std::vector<Variant> arguments = fitting(operation);
    arguments.emplace_back(std::int32_t{1});
    refuses(arguments);
    for (std::size_t i = 0; i < operation.arguments.size(); ++i) {
        arguments = fitting(operation);
        arguments[i] = Variant();
        refuses(arguments);
        for (const ArgumentType& type : argumentTypes) {
            arguments[i] = type.value;
            if (type.code != operation.arguments[i]) refuses(arguments);
        }
        refuses({arguments.begin(), arguments.begin() + static_cast<std::ptrdiff_t>(i)});
    }
}

void refusesAllOtherIds(platform::Component& component) {
    for (std::int32_t dispid = -2; dispid < 30; ++dispid) {
        for (const InvokeKind kind : kinds) {
            const auto is = [&](const OperationInfo& each) {
                return each.dispid == dispid && each.kind == kind;
            };
            if (std::ranges::any_of(component.operations(), is)) continue;
            EXPECT_FALSE(component.invoke(dispid, kind, {})) << dispid;
            EXPECT_FALSE(component.invoke(dispid, kind, std::vector{Variant(std::int32_t{1})})) << dispid;
        }
    }
}

TEST(Operations, AreThoseOfTheInterfaceAndTakeTheirArgumentsOnly) {
    for (const Offer& offer : offers) {
        SCOPED_TRACE(offer.component);
        RecordingSite site;
        const auto component = offer.create(site, nullptr);
        std::string lines;
        for (const OperationInfo& operation : component->operations()) {
            lines += lineOf(operation);
            refusesMisfits(*component, operation);
        }
        EXPECT_EQ(lines, offer.operations);
        refusesAllOtherIds(*component);
        EXPECT_TRUE(site.events.empty());
    }
}

TEST(Components, SurviveTheirHostsWindow) {
    for (const Offer& offer : offers) {
        SCOPED_TRACE(offer.component);
        RecordingSite site;
        auto window = std::make_unique<QWidget>();
        const auto component = offer.create(site, window.get());
        EXPECT_EQ(component->widget().parentWidget(), window.get());
        component->widget().resize(120, 30);
        component->widget().grab();
        window.reset();
        for (const OperationInfo& operation : component->operations()) {
            if (operation.arguments.empty()) component->invoke(operation.dispid, operation.kind, {});
        }
    }
}

}  // namespace
}  // namespace controls
