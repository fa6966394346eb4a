#include "controls/select/ElsewhereList.h"

#include <QKeyEvent>
#include <utility>

#include "controls/common/QtText.h"
#include "controls/select/Appearance.h"
#include "formats/SectionTable.h"

namespace controls::select {

namespace {

const auto searchLink = QStringLiteral("search");

constexpr int textMargin = 16;

QString paragraph(const QString& link, const QString& text, const QString& below) {
    QString html =
        QStringLiteral("<p style='margin: 0 0 8px 0'><a href='%1'>%2</a>").arg(link, text.toHtmlEscaped());
    if (!below.isEmpty()) {
        html += QStringLiteral("<br><span style='color: %1'>%2</span>")
                    .arg(appearance::muted.name(), below.toHtmlEscaped());
    }
    return html + QStringLiteral("</p>");
}

QString sectionName(std::int16_t code) {
    const formats::Section* const section = formats::sectionByCode(code);
    return section ? toQt(section->displayName) : QString();
}

}  // namespace

ElsewhereList::ElsewhereList(MatchHandler onMatch, SearchHandler onSearch, QWidget* parent)
    : QTextBrowser(parent), onMatch_(std::move(onMatch)), onSearch_(std::move(onSearch)) {
    setObjectName(QStringLiteral("elsewhere"));
    setAccessibleName(QStringLiteral("Σε άλλες ενότητες"));
    setFont(appearance::font());
    setFrameShape(NoFrame);
    setOpenLinks(false);
    document()->setDocumentMargin(textMargin);
    setContextMenuPolicy(Qt::NoContextMenu);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Not inside the browser's own work: the list is emptied when the section changes.
    connect(
        this, &QTextBrowser::anchorClicked, this, [this](const QUrl& url) { follow(url.toString()); },
        Qt::QueuedConnection);
}

void ElsewhereList::offer(std::vector<FoundElsewhere> matches, const QString& word) {
    matches_ = std::move(matches);
    QString html;
    if (!matches_.empty()) html += QStringLiteral("<p style='margin: 0 0 8px 0'>Σε άλλες ενότητες:</p>");
    int number = 0;
    for (const FoundElsewhere& match : matches_) {
        html += paragraph(QString::number(number++), toQt(match.title), sectionName(match.section));
    }
    html += paragraph(searchLink, QStringLiteral("Αναζήτηση της λέξης «%1»").arg(word), {});
    setHtml(html);
}

void ElsewhereList::enter() {
    setFocus();
    focusNextPrevChild(true);
}

void ElsewhereList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        emit escaped();
    } else {
        QTextBrowser::keyPressEvent(event);
    }
}

void ElsewhereList::follow(const QString& link) {
    if (link == searchLink) return onSearch_();
    const std::size_t number = link.toUInt();
    if (number >= matches_.size()) return;
    const FoundElsewhere match = matches_[number];
    onMatch_(match);
}

}  // namespace controls::select
