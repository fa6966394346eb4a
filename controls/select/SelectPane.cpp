#include "controls/select/SelectPane.h"

#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>
#include <memory>
#include <utility>

#include "controls/common/QtText.h"
#include "controls/select/Appearance.h"
#include "controls/select/ElsewhereList.h"
#include "controls/select/FilterField.h"
#include "controls/select/TopicModel.h"
#include "controls/select/TopicView.h"
#include "formats/SectionTable.h"

namespace controls::select {

namespace {

constexpr int sideMargin = 8;
constexpr int ruleHeight = 2;
/// What it offers gets all the room below the note.
constexpr int elsewhereStretch = 100;
constexpr std::size_t maxElsewhere = 20;

void setUp(QLabel& label, const char* name) {
    label.setObjectName(QString::fromLatin1(name));
    label.setFont(appearance::font());
    label.setTextFormat(Qt::PlainText);
    label.setWordWrap(true);
}

void recolour(QWidget& widget, QPalette::ColorRole role, const QColor& color) {
    QPalette colors = widget.palette();
    colors.setColor(role, color);
    widget.setPalette(colors);
}

QString longestWord(const QString& text) {
    QString longest;
    for (const QString& word : text.simplified().split(u' ')) {
        if (word.size() > longest.size()) longest = word;
    }
    return longest;
}

}  // namespace

SelectPane::SelectPane(BrowseSelection& selection, Host host, QWidget* parent)
    : QWidget(parent),
      selection_(selection),
      host_(std::move(host)),
      model_(new TopicModel(selection, this)),
      sectionName_(new QLabel(this)),
      rule_(new QWidget(this)),
      field_(new FilterField(this)),
      view_(new TopicView(*model_, this)),
      emptyNote_(new QLabel(this)),
      elsewhere_(new ElsewhereList([this](const FoundElsewhere& match) { openElsewhere(match); },
                                   [this] { host_.searchWord(fromQt(longestWord(field_->text()))); }, this)) {
    setObjectName(QStringLiteral("selectPane"));
    setAttribute(Qt::WA_StyledBackground);
    setPalette(appearance::palette());
    setFocusProxy(field_);
    setUp(*sectionName_, "sectionName");
    setUp(*emptyNote_, "emptyNote");
    rule_->setFixedHeight(ruleHeight);
    rule_->setAutoFillBackground(true);
    emptyNote_->setAlignment(Qt::AlignTop | Qt::AlignHCenter);

    layOutParts();
    connectParts();
    updateHeader();
    updateEmptyNote();
}

void SelectPane::layOutParts() {
    auto fieldRow = std::make_unique<QVBoxLayout>();
    fieldRow->setContentsMargins(sideMargin, sideMargin, sideMargin, sideMargin);
    fieldRow->addWidget(field_);
    auto column = std::make_unique<QVBoxLayout>();
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(sectionName_);
    column->addWidget(rule_);
    column->addLayout(fieldRow.release());
    column->addWidget(view_, 1);
    column->addWidget(emptyNote_, 1);
    column->addWidget(elsewhere_, elsewhereStretch);
    setLayout(column.release());
}

void SelectPane::connectParts() {
    connect(field_, &QLineEdit::textChanged, this, &SelectPane::narrow);
    connect(field_, &QLineEdit::returnPressed, this, &SelectPane::openFirst);
    connect(field_, &FilterField::leftAtBottom, this, &SelectPane::enterList);
    connect(view_, &TopicView::chosen, this,
            [this](const QModelIndex& index) { choose(model_->rowOf(index)); });
    connect(view_, &TopicView::typed, field_, &FilterField::takeTyping);
    connect(view_, &TopicView::leftAtTop, field_, [this] { field_->setFocus(); });
    connect(view_, &TopicView::escaped, field_, &QLineEdit::clear);
    connect(elsewhere_, &ElsewhereList::escaped, field_, [this] {
        field_->setFocus();
        field_->clear();
    });
    connect(view_, &TopicView::erased, field_, [this] {
        field_->setFocus();
        field_->backspace();
    });
    connect(view_, &QTreeView::expanded, this, [this](const QModelIndex& index) {
        selection_.list().setOpened(model_->rowOf(index).topic, true);
    });
    connect(view_, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
        selection_.list().setOpened(model_->rowOf(index).topic, false);
    });
}

template <class Change>
void SelectPane::relist(Change&& change) {
    model_->reset(std::forward<Change>(change));
    const TopicList& list = selection_.list();
    int line = 0;
    for (const TopicList::ListedTopic& listed : list.topics()) {
        if (list.opened(listed.topic)) view_->expand(model_->index(line, 0));
        ++line;
    }
    updateEmptyNote();
}

void SelectPane::setIndex(formats::BrowseIndex index) {
    relist([&] { selection_.setIndex(std::move(index)); });
    field_->clear();
    updateHeader();
}

void SelectPane::setSection(std::int16_t code) {
    if (code == selection_.section()) {
        selection_.setSection(code);
    } else {
        relist([&] { selection_.setSection(code); });
        field_->clear();
        updateHeader();
    }
    markMoved();
}

ChoiceEvents SelectPane::showPlace(const Place& place) {
    if (const std::int16_t section = selection_.sectionOf(place); section != selection_.section())
        setSection(section);
    ChoiceEvents answer = selection_.show(place);
    markMoved();
    return answer;
}

void SelectPane::narrow(const QString& text) {
    relist([&] { selection_.list().narrow(fromQt(text)); });
    view_->scrollToTop();
    if (const QModelIndex shown = shownIndex(); shown.isValid()) view_->reveal(shown);
    // The line that Enter opens must be visible, even if the place that is shown then is not.
    if (const auto match = selection_.list().firstMatch()) {
        const QModelIndex index = model_->indexOf(*match);
        view_->setCurrentIndex(index);
        view_->scrollTo(index);
    }
}

void SelectPane::openFirst() {
    if (selection_.list().narrowed()) {
        if (const auto match = selection_.list().firstMatch()) choose(*match);
    } else if (const QModelIndex current = view_->currentIndex(); current.isValid()) {
        choose(model_->rowOf(current));
    }
}

void SelectPane::choose(const Row& row) {
    const ChoiceEvents events = selection_.choose(row);
    markMoved();
    host_.tellChoice(events);
}

void SelectPane::enterList() {
    if (model_->rowCount() > 0) {
        view_->setFocus();
    } else if (selection_.list().narrowed()) {
        elsewhere_->enter();
    }
}

void SelectPane::openElsewhere(const FoundElsewhere& match) {
    host_.openSection(match.section);
    // A host may refuse.
    if (selection_.section() == match.section) choose(match.row);
}

void SelectPane::offerElsewhere() {
    const QString text = field_->text();
    elsewhere_->offer(selection_.findElsewhere(fromQt(text), maxElsewhere), longestWord(text));
}

void SelectPane::markMoved() {
    const auto shown = selection_.shownRow();
    if (shown && selection_.list().contains(*shown) && selection_.list().opened(shown->topic)) {
        view_->expand(model_->indexOf({shown->topic, std::nullopt}));
    }
    view_->remeasure();
    revealLater();
}

// A host that returns to a place sets the section first and asks for the place next. Only the last of these
// places is scrolled to.
void SelectPane::revealLater() {
    if (std::exchange(revealPending_, true)) return;
    QTimer::singleShot(0, this, &SelectPane::revealShown);
}

void SelectPane::revealShown() {
    revealPending_ = false;
    const auto shown = selection_.shownRow();
    if (!shown) return;
    if (!selection_.list().contains(*shown)) field_->clear();
    view_->reveal(shownIndex());
}

QModelIndex SelectPane::shownIndex() const {
    const auto shown = selection_.shownRow();
    if (!shown) return {};
    const QModelIndex topic = model_->indexOf({shown->topic, std::nullopt});
    return view_->isExpanded(topic) ? model_->indexOf(*shown) : topic;
}

void SelectPane::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    // Set late, because it takes long and a pane that has never been shown does not need it.
    if (styleSheet().isEmpty()) setStyleSheet(appearance::styleSheet());
    revealLater();
}

void SelectPane::updateHeader() {
    const formats::Section* section = formats::sectionByCode(selection_.section());
    const QColor accent = appearance::sectionAccent(selection_.section());
    const QString name = section ? toQt(section->displayName) : QString();
    sectionName_->setText(name);
    recolour(*sectionName_, QPalette::WindowText, accent);
    recolour(*rule_, QPalette::Window, accent);
    view_->setAccent(accent);
    view_->setAccessibleName(section ? QStringLiteral("Θέματα της ενότητας ") + name
                                     : QStringLiteral("Θέματα"));
}

void SelectPane::updateEmptyNote() {
    const bool empty = model_->rowCount() == 0;
    emptyNote_->setText(selection_.list().narrowed() ? QStringLiteral("Δεν βρέθηκε θέμα")
                        : selection_.section() != 0  ? QStringLiteral("Δεν υπάρχουν θέματα")
                                                     : QString());
    emptyNote_->setVisible(empty);
    const bool offers = empty && selection_.list().narrowed();
    if (offers) offerElsewhere();
    elsewhere_->setVisible(offers);
    view_->setVisible(!empty);
}

}  // namespace controls::select
