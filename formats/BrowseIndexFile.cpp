#include <algorithm>

#include "formats/BrowseIndex.h"
#include "formats/PageNumber.h"
#include "formats/RecordFields.h"
#include "formats/SectionTable.h"

// The file is described in docs/formats/browse-index.md.
namespace formats {
namespace {

constexpr std::string_view fileMagic = "KSEL";
constexpr std::uint16_t fileVersion = 1;
constexpr std::size_t headerSize = 20;
constexpr std::size_t sectionSize = 8;
constexpr std::size_t topicSize = 16;
constexpr std::size_t entrySize = 8;

bool isPageNumber(std::int32_t number) { return number >= 1 && number <= maxPageNumber; }

// The four blocks after the header, cut to their sizes.
struct Blocks {
    std::string_view sections;
    std::string_view topics;
    std::string_view entries;
    std::string_view texts;
};

std::optional<Blocks> cutBlocks(std::string_view image) {
    if (image.size() < headerSize || !image.starts_with(fileMagic)) return std::nullopt;
    if (readInteger<std::uint16_t>(image, 4) != fileVersion) return std::nullopt;
    const std::uint64_t sections = readInteger<std::uint16_t>(image, 6) * std::uint64_t{sectionSize};
    const std::uint64_t topics = readInteger<std::uint32_t>(image, 8) * std::uint64_t{topicSize};
    const std::uint64_t entries = readInteger<std::uint32_t>(image, 12) * std::uint64_t{entrySize};
    const std::uint64_t texts = readInteger<std::uint32_t>(image, 16);
    if (headerSize + sections + topics + entries + texts != image.size()) return std::nullopt;

    image.remove_prefix(headerSize);
    const auto cut = [&image](std::uint64_t size) {
        const std::string_view block = image.substr(0, static_cast<std::size_t>(size));
        image.remove_prefix(block.size());
        return block;
    };
    Blocks blocks;
    blocks.sections = cut(sections);
    blocks.topics = cut(topics);
    blocks.entries = cut(entries);
    blocks.texts = cut(texts);
    return blocks;
}

// Takes the records from the blocks one after another; false when the file is damaged.
class BrowseIndexReader {
  public:
    explicit BrowseIndexReader(const Blocks& blocks) : blocks_(blocks) {}

    bool read(BrowseIndex& index) {
        while (!blocks_.sections.empty()) {
            BrowseSection section;
            if (!readSection(section) || findSection(index, section.code)) return false;
            index.sections.push_back(std::move(section));
        }
        return blocks_.topics.empty() && blocks_.entries.empty();
    }

  private:
    bool readSection(BrowseSection& section) {
        const std::string_view record = take(blocks_.sections, sectionSize);
        section.code = readInteger<std::int16_t>(record, 0);
        const auto topics = readInteger<std::uint32_t>(record, 4);
        if (!sectionByCode(section.code) || topics > blocks_.topics.size() / topicSize) return false;
        section.topics.resize(topics);
        return std::ranges::all_of(section.topics, [this](BrowseTopic& topic) { return readTopic(topic); });
    }

    bool readTopic(BrowseTopic& topic) {
        const std::string_view record = take(blocks_.topics, topicSize);
        topic.pageId = readInteger<std::int32_t>(record, 0);
        topic.pageNumber = readInteger<std::int32_t>(record, 4);
        const auto entries = readInteger<std::uint32_t>(record, 12);
        if (topic.pageId < 1 || !isPageNumber(topic.pageNumber)) return false;
        if (entries > blocks_.entries.size() / entrySize) return false;
        topic.entries.resize(entries);
        return readTitle(readInteger<std::uint32_t>(record, 8), topic.title) &&
               std::ranges::all_of(topic.entries, [this](BrowseEntry& entry) { return readEntry(entry); });
    }

    bool readEntry(BrowseEntry& entry) {
        const std::string_view record = take(blocks_.entries, entrySize);
        entry.itemCode = readInteger<std::int32_t>(record, 0);
        return isPageNumber(entry.itemCode) && readTitle(readInteger<std::uint32_t>(record, 4), entry.title);
    }

    // Several titles may share their bytes. The limit on their length keeps the memory for them in proportion
    // to the file.
    bool readTitle(std::uint32_t offset, std::string& title) const {
        if (offset >= blocks_.texts.size()) return false;
        const std::string_view rest = blocks_.texts.substr(offset, maxSectionTitle + 1);
        const std::size_t length = rest.find('\0');
        if (length == std::string_view::npos) return false;
        title = rest.substr(0, length);
        return true;
    }

    static std::string_view take(std::string_view& block, std::size_t size) {
        const std::string_view record = block.substr(0, size);
        block.remove_prefix(size);
        return record;
    }

    Blocks blocks_;
};

struct BrowseIndexWriter {
    std::string sections;
    std::string topics;
    std::string entries;
    std::string texts;

    void add(const BrowseSection& section) {
        appendInteger(sections, section.code);
        appendInteger(sections, std::uint16_t{0});
        appendInteger(sections, static_cast<std::uint32_t>(section.topics.size()));
        for (const BrowseTopic& topic : section.topics) add(topic);
    }

    void add(const BrowseTopic& topic) {
        appendInteger(topics, topic.pageId);
        appendInteger(topics, topic.pageNumber);
        appendInteger(topics, addText(topic.title));
        appendInteger(topics, static_cast<std::uint32_t>(topic.entries.size()));
        for (const BrowseEntry& entry : topic.entries) {
            appendInteger(entries, entry.itemCode);
            appendInteger(entries, addText(entry.title));
        }
    }

    std::uint32_t addText(const std::string& text) {
        const auto offset = static_cast<std::uint32_t>(texts.size());
        texts.append(text).push_back('\0');
        return offset;
    }

    std::string image() const {
        std::string image(fileMagic);
        appendInteger(image, fileVersion);
        appendInteger(image, static_cast<std::uint16_t>(sections.size() / sectionSize));
        appendInteger(image, static_cast<std::uint32_t>(topics.size() / topicSize));
        appendInteger(image, static_cast<std::uint32_t>(entries.size() / entrySize));
        appendInteger(image, static_cast<std::uint32_t>(texts.size()));
        return image + sections + topics + entries + texts;
    }
};

}  // namespace

std::optional<BrowseIndex> decodeBrowseIndex(std::string_view image) {
    const auto blocks = cutBlocks(image);
    BrowseIndex index;
    if (!blocks || !BrowseIndexReader(*blocks).read(index)) return std::nullopt;
    return index;
}

std::optional<std::string> encodeBrowseIndex(const BrowseIndex& index) {
    BrowseIndexWriter writer;
    for (const BrowseSection& section : index.sections) writer.add(section);
    std::string image = writer.image();
    // The rules of the format are checked in one place, when it is read.
    if (decodeBrowseIndex(image) != index) return std::nullopt;
    return image;
}

}  // namespace formats
