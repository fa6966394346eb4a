#include "platform/registry/RegFileReader.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <utility>

#include "platform/text/CodePageTable.h"

namespace platform {

namespace {

constexpr std::string_view blanks = " \t\r";

std::string_view trimmedEnd(std::string_view text) {
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

}  // namespace

Result<RegistryNode> RegFileReader::read() {
    if (!readAll()) return Failure{"γραμμή " + std::to_string(line()) + ": " + problem_};
    return std::move(tree_);
}

bool RegFileReader::readAll() {
    if (!checkEncoding() || !readHeader()) return false;
    while (at_ < text_.size()) {
        if (!readLine()) return false;
    }
    return true;
}

std::size_t RegFileReader::line() const {
    const std::string_view before = text_.substr(0, at_);
    return 1 + static_cast<std::size_t>(std::ranges::count(before, '\n'));
}

bool RegFileReader::checkEncoding() {
    for (std::size_t at = 0; at < text_.size();) {
        const auto character = codepage::decodeUtf8(text_, at);
        if (character.value == codepage::Utf8Character::malformed) {
            at_ = at;
            return fail("δεν είναι UTF-8");
        }
        at += character.length;
    }
    return true;
}

bool RegFileReader::readHeader() {
    if (trimmedEnd(restOfLine()) != regFileHeader) {
        return fail("η γραμμή δεν είναι \"" + std::string(regFileHeader) + "\"");
    }
    at_ += restOfLine().size();
    return true;
}

bool RegFileReader::readLine() {
    skipBlanks();
    if (take("\n") || at_ == text_.size()) return true;
    switch (text_[at_]) {
        case ';':
            return endLine();
        case '[':
            return readKey();
        case '@':
        case '"':
            return readValue();
        default:
            return fail("δεν είναι ούτε κλειδί ούτε τιμή");
    }
}

bool RegFileReader::readKey() {
    const std::string_view line = trimmedEnd(restOfLine());
    if (!line.ends_with(']')) return fail("από το κλειδί λείπει η αγκύλη στο τέλος");
    const std::string_view path = line.substr(1, line.size() - 2);
    // A root key behind it could begin with the minus of a removal, which it would be taken for once written.
    if (path.starts_with('\\')) return fail("η διαδρομή του κλειδιού αρχίζει με ανάποδη κάθετο");
    if (path.starts_with('-')) {
        tree_.remove(path.substr(1));
        key_ = nullptr;
    } else {
        key_ = tree_.make(path);
        if (!key_ || key_ == &tree_) return fail("η διαδρομή του κλειδιού είναι κενή ή έχει πάρα πολλά μέρη");
    }
    at_ += line.size();
    return endLine();
}

bool RegFileReader::readValue() {
    if (!key_) return fail("η τιμή δεν ανήκει σε κλειδί");
    std::optional<std::string> name;
    if (take("@")) {
        name.emplace();
    } else {
        name = readQuoted();
    }
    if (!name) return false;
    skipBlanks();
    if (!take("=")) return fail("από την τιμή λείπει το ίσον");
    skipBlanks();
    return readData(*name) && endLine();
}

bool RegFileReader::readData(const std::string& name) {
    const std::string_view rest = restOfLine();
    if (rest.starts_with('"')) {
        auto text = readQuoted();
        if (text) key_->setValue(name, std::move(*text));
        return text.has_value();
    }
    if (rest.starts_with("hex")) return readOther(name);
    if (take("dword:")) return readDword(name);
    if (take("-")) {
        key_->values.erase(registryLookupName(name));
        return true;
    }
    return fail("η τιμή είναι άγνωστου είδους");
}

bool RegFileReader::readDword(const std::string& name) {
    const std::string_view rest = restOfLine();
    std::uint32_t number = 0;
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), number, 16);
    if (error != std::errc()) return fail("ο αριθμός δεν έχει ένα έως οκτώ δεκαεξαδικά ψηφία");
    at_ += static_cast<std::size_t>(end - rest.data());
    key_->setValue(name, number);
    return true;
}

bool RegFileReader::readOther(const std::string& name) {
    const std::string_view kind = restOfLine().substr(0, restOfLine().find(':') + 1);
    if (kind.empty()) return fail("η τιμή είναι άγνωστου είδους");
    std::string text(kind);
    at_ += kind.size();
    for (;;) {
        skipBlanks();
        const std::size_t end =
            std::min(text_.find_first_not_of("0123456789abcdefABCDEF,", at_), text_.size());
        text += text_.substr(at_, end - at_);
        at_ = end;
        if (!take("\\")) break;
        skipBlanks();
        if (!take("\n")) return fail("μετά την ανάποδη κάθετο δεν τελειώνει η γραμμή");
    }
    key_->setValue(name, RegistryOther{std::move(text)});
    return true;
}

bool RegFileReader::endLine() {
    skipBlanks();
    if (at_ < text_.size() && text_[at_] == ';') at_ += restOfLine().size();
    return take("\n") || at_ == text_.size() || fail("υπάρχει κάτι μετά το τέλος του κλειδιού ή της τιμής");
}

std::optional<std::string> RegFileReader::readQuoted() {
    std::string result;
    for (std::size_t i = at_ + 1; i < text_.size(); ++i) {
        if (text_[i] == '"') {
            at_ = i + 1;
            return result;
        }
        const bool escape =
            text_[i] == '\\' && i + 1 < text_.size() && (text_[i + 1] == '\\' || text_[i + 1] == '"');
        if (escape) ++i;
        result += text_[i];
    }
    fail("από το κείμενο λείπουν τα εισαγωγικά στο τέλος");
    return std::nullopt;
}

std::string_view RegFileReader::restOfLine() const {
    return text_.substr(at_, std::min(text_.find('\n', at_), text_.size()) - at_);
}

void RegFileReader::skipBlanks() { at_ = std::min(text_.find_first_not_of(blanks, at_), text_.size()); }

bool RegFileReader::take(std::string_view expected) {
    const bool there = text_.substr(at_).starts_with(expected);
    if (there) at_ += expected.size();
    return there;
}

bool RegFileReader::fail(std::string problem) {
    problem_ = std::move(problem);
    return false;
}

}  // namespace platform
