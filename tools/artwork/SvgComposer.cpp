#include "tools/artwork/SvgComposer.h"

#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QRegularExpression>
#include <utility>

#include "tools/artwork/Failure.h"

namespace artwork {
namespace {

constexpr int maxNesting = 8;

using Colours = QMap<QString, QString>;

Result<QDomDocument> load(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return failureOf(path, file.errorString());
    QDomDocument document;
    QString message;
    int line = 0;
    if (!document.setContent(&file, false, &message, &line))
        return failureOf(path, QStringLiteral("line %1: %2").arg(line).arg(message));
    if (document.documentElement().tagName() != "svg")
        return failureOf(path, QStringLiteral("not an SVG file"));
    return document;
}

/// Resolves one source together with all files that it uses.
class Walk {
  public:
    Walk(const Palette& palette, const QDomDocument& document) : palette_(palette), document_(document) {}

    Result<void> resolve(const QDomElement& element, const QString& path, const Colours& colours, int depth) {
        if (auto done = paint(element, path, colours); !done) return done;
        if (auto done = checkFont(element, path); !done) return done;
        for (QDomElement child = element.firstChildElement(); !child.isNull();) {
            const QDomElement next = child.nextSiblingElement();
            const QString href = child.attribute("xlink:href");
            const bool external = child.tagName() == "use" && href.endsWith(".svg");
            auto resolved =
                external ? include(child, href, path, colours, depth) : resolve(child, path, colours, depth);
            if (!resolved) return resolved;
            child = next;
        }
        return {};
    }

    Colours coloursOf(const QString& set) const {
        Colours colours = palette_.value("base");
        colours.insert(palette_.value(set));
        return colours;
    }

  private:
    Result<void> include(const QDomElement& use, const QString& href, const QString& from,
                         const Colours& colours, int depth) {
        if (depth >= maxNesting) return failureOf(from, "too many files inside one another at " + href);
        const QString path = QFileInfo(from).absolutePath() + "/" + href;
        auto loaded = load(path);
        if (!loaded) return loaded.failure();
        const QDomElement root = loaded->documentElement();

        const QStringList box = root.attribute("viewBox").split(' ');
        if (box.size() != 4 || box[2].toDouble() <= 0 || box[3].toDouble() <= 0)
            return failureOf(path, QStringLiteral("no usable viewBox"));
        QDomElement group = document_.createElement("g");
        const double sx = use.attribute("width", box[2]).toDouble() / box[2].toDouble();
        const double sy = use.attribute("height", box[3]).toDouble() / box[3].toDouble();
        group.setAttribute("transform", QStringLiteral("translate(%1 %2) scale(%3 %4)")
                                            .arg(use.attribute("x", "0"), use.attribute("y", "0"))
                                            .arg(sx)
                                            .arg(sy));
        copyInto(group, root);

        const QString set = use.attribute("data-colours");
        if (!set.isEmpty() && !palette_.contains(set)) return failureOf(from, "no colour set " + set);
        use.parentNode().replaceChild(group, use);
        return resolve(group, path, set.isEmpty() ? colours : coloursOf(set), depth + 1);
    }

    void copyInto(QDomElement group, const QDomElement& root) {
        for (const char* inherited : {"fill", "stroke", "stroke-width", "stroke-linecap", "stroke-linejoin"})
            if (root.hasAttribute(inherited)) group.setAttribute(inherited, root.attribute(inherited));
        for (QDomNode node = root.firstChild(); !node.isNull(); node = node.nextSibling())
            group.appendChild(document_.importNode(node, true));
    }

    static Result<void> paint(const QDomElement& element, const QString& path, const Colours& colours) {
        static const QRegularExpression variable(R"(^var\(--([a-z0-9-]+)\)$)");
        const QDomNamedNodeMap attributes = element.attributes();
        for (int i = 0; i < attributes.count(); ++i) {
            QDomAttr attribute = attributes.item(i).toAttr();
            const auto match = variable.match(attribute.value());
            if (!match.hasMatch()) continue;
            const auto colour = colours.constFind(match.captured(1));
            if (colour == colours.constEnd()) return failureOf(path, "no colour " + match.captured(1));
            attribute.setValue(*colour);
        }
        return {};
    }

    // Qt would replace a missing font without a word, and texts would no longer fit their places.
    static Result<void> checkFont(const QDomElement& element, const QString& path) {
        const QString family = element.attribute("font-family");
        if (family.isEmpty() || QFontDatabase::hasFamily(family)) return {};
        return failureOf(path, "font not installed: " + family);
    }

    const Palette& palette_;
    QDomDocument document_;
};

}  // namespace

SvgComposer::SvgComposer(const Palette& palette, QString colours)
    : palette_(palette), colours_(std::move(colours)) {}

Result<QByteArray> SvgComposer::compose(const QString& path) const {
    auto loaded = load(path);
    if (!loaded) return loaded.failure();
    auto& document = *loaded;
    Walk walk(palette_, document);
    const auto resolved = walk.resolve(document.documentElement(), path, walk.coloursOf(colours_), 0);
    if (!resolved) return resolved.failure();
    return document.toByteArray(-1);
}

}  // namespace artwork
