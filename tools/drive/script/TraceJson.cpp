#include "tools/drive/script/TraceJson.h"

namespace drive {

using namespace platform;

namespace {

Json texts(const std::vector<std::string>& list) {
    Json json = Json::array();
    for (const std::string& item : list) json.push_back(text(item));
    return json;
}

Json button(BoxAnswer answer) { return std::string(boxAnswerName(answer)); }

Json valueJson(const TraceValue& value) {
    return std::visit(
        [](const auto& held) -> Json {
            using T = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<T, std::monostate>) {
                return nullptr;
            } else if constexpr (std::is_same_v<T, std::string>) {
                return text(held);
            } else {
                return held;
            }
        },
        value);
}

const char* kindName(TraceCallKind kind) {
    switch (kind) {
        case TraceCallKind::get:
            return "get";
        case TraceCallKind::put:
            return "put";
        case TraceCallKind::method:
            break;
    }
    return "method";
}

Json entryJson(const TraceBox& box) {
    Json buttons = Json::array();
    for (const BoxAnswer answer : box.buttons) buttons.push_back(button(answer));
    return {{"box",
             {{"text", text(box.text)},
              {"caption", text(box.caption)},
              {"buttons", std::move(buttons)},
              {"answer", button(box.answer)}}}};
}

Json entryJson(const TraceCall& call) {
    Json args = Json::array();
    for (const TraceValue& value : call.args) args.push_back(valueJson(value));
    return {{"call",
             {{"control", call.control},
              {"class", text(call.className)},
              {"dispid", call.dispid},
              {"kind", kindName(call.kind)},
              {"name", text(call.name)},
              {"args", std::move(args)},
              {"result", valueJson(call.result)}}}};
}

Json entryJson(const TraceNavigate& navigate) {
    return {{"navigate",
             {{"control", navigate.control}, {"url", text(navigate.url)}, {"flags", navigate.flags}}}};
}

Json entryJson(const TraceRefused& refused) { return {{"refused", {{"url", text(refused.url)}}}}; }

Json entryJson(const TraceSleep& sleep) { return {{"sleep", sleep.milliseconds}}; }

Json entryJson(const TraceShell& shell) {
    return {{"shell",
             {{"verb", text(shell.verb)},
              {"file", text(shell.file)},
              {"parameters", text(shell.parameters)},
              {"folder", text(shell.folder)}}}};
}

Json entryJson(const TracePrint& print) {
    return {
        {"print", {{"document", text(print.document)}, {"pages", print.pages}, {"file", text(print.file)}}}};
}

Json entryJson(const TraceRegister& registered) { return {{"register", text(registered.path)}}; }

Json entryJson(const TraceClipboard& clipboard) { return {{"clipboard", texts(clipboard.formats)}}; }

}  // namespace

Json traceJson(const std::vector<TraceEntry>& entries) {
    Json list = Json::array();
    for (const TraceEntry& entry : entries) {
        list.push_back(std::visit([](const auto& happened) { return entryJson(happened); }, entry));
    }
    return list;
}

}  // namespace drive
