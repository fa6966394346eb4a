#include <algorithm>

#include "formats/BrowseIndex.h"
#include "formats/PageNumber.h"
#include "formats/RecordFields.h"
#include "formats/SectionTable.h"

// The file is described in docs/formats/browse-index.md.
namespace formats {
namespace {

constexpr std::string_view kMagic = "KSEL";
constexpr std::uint16_t kVersion = 1;
constexpr std::size_t kHeaderSize = 20;
constexpr std::size_t kSectionSize = 8;
constexpr std::size_t kTopicSize = 16;
constexpr std::size_t kEntrySize = 8;

bool isPageNumber(std::int32_t number) { return number >= 1 && number <= kMaxPageNumber; }

// The four blocks behind the header, cut to their sizes.
struct Blocks {
    std::string_view sections;
    std::string_view topics;
    std::string_view entries;
    std::string_view texts;
};

std::optional<Blocks> cutBlocks(std::string_view image) {
    if (image.size() < kHeaderSize || !image.starts_with(kMagic)) return std::nullopt;
    if (readInteger<std::uint16_t>(image, 4) != kVersion) return std::nullopt;
    const std::uint64_t sections = readInteger<std::uint16_t>(image, 6) * std::uint64_t{kSectionSize};
    const std::uint64_t topics = readInteger<std::uint32_t>(image, 8) * std::uint64_t{kTopicSize};
    const std::uint64_t entries = readInteger<std::uint32_t>(image, 12) * std::uint64_t{kEntrySize};
    const std::uint64_t texts = readInteger<std::uint32_t>(image, 16);
    if (kHeaderSize + sections + topics + entries + texts != image.size()) return std::nullopt;

    image.remove_prefix(kHeaderSize);
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

// Takes the records from the blocks one after another; a false result means damage.
class BrowseIndexReader {
  public:
    explicit BrowseIndexReader(const Blocks& blocks) : m_blocks(blocks) {}

    bool read(BrowseIndex& index) {
        while (!m_blocks.sections.empty()) {
            BrowseSection section;
            if (!readSection(section) || findSection(index, section.code)) return false;
            index.sections.push_back(std::move(section));
        }
        return m_blocks.topics.empty() && m_blocks.entries.empty();
    }

  private:
    bool readSection(BrowseSection& section) {
        const std::string_view record = take(m_blocks.sections, kSectionSize);
        section.code = readInteger<std::int16_t>(record, 0);
        const auto topics = readInteger<std::uint32_t>(record, 4);
        if (!sectionByCode(section.code) || topics > m_blocks.topics.size() / kTopicSize) return false;
        section.topics.resize(topics);
        return std::ranges::all_of(section.topics, [this](BrowseTopic& topic) { return readTopic(topic); });
    }

    bool readTopic(BrowseTopic& topic) {
        const std::string_view record = take(m_blocks.topics, kTopicSize);
        topic.pageId = readInteger<std::int32_t>(record, 0);
        topic.pageNumber = readInteger<std::int32_t>(record, 4);
        const auto entries = readInteger<std::uint32_t>(record, 12);
        if (topic.pageId < 1 || !isPageNumber(topic.pageNumber)) return false;
        if (entries > m_blocks.entries.size() / kEntrySize) return false;
        topic.entries.resize(entries);
        return readTitle(readInteger<std::uint32_t>(record, 8), topic.title) &&
               std::ranges::all_of(topic.entries, [this](BrowseEntry& entry) { return readEntry(entry); });
    }

    bool readEntry(BrowseEntry& entry) {
        const std::string_view record = take(m_blocks.entries, kEntrySize);
        entry.itemCode = readInteger<std::int32_t>(record, 0);
        return isPageNumber(entry.itemCode) && readTitle(readInteger<std::uint32_t>(record, 4), entry.title);
    }

    // The limit on a title's length keeps what is read in proportion to the file: offsets may be shared.
    bool readTitle(std::uint32_t offset, std::string& title) const {
        if (offset >= m_blocks.texts.size()) return false;
        const std::string_view rest = m_blocks.texts.substr(offset, kMaxSectionTitle + 1);
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

    Blocks m_blocks;
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
        std::string image(kMagic);
        appendInteger(image, kVersion);
        appendInteger(image, static_cast<std::uint16_t>(sections.size() / kSectionSize));
        appendInteger(image, static_cast<std::uint32_t>(topics.size() / kTopicSize));
        appendInteger(image, static_cast<std::uint32_t>(entries.size() / kEntrySize));
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
    // Reading it back is the one place where the rules of the format stand.
    if (decodeBrowseIndex(image) != index) return std::nullopt;
    return image;
}

}  // namespace formats
