#include "controls/select/SelectPane.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>

#include "tests/controls/select/SelectHost.h"

using namespace platform::literals;
using controls::select::TopicModel;
using Lines = std::vector<std::string>;

namespace {

/// The pane on the screen, operated by keys and mouse.
class SelectPaneTest : public testing::Test {
  protected:
    void SetUp() override {
        host_.initialise();
        pane().resize(216, 300);
        showPane();
    }

    void showPane() {
        pane().show();
        QApplication::setActiveWindow(&pane());
        field().setFocus();
        settle();
    }

    controls::select::SelectPane& pane() { return host_.pane(); }
    controls::select::FilterField& field() { return pane().field(); }
    controls::select::TopicView& view() { return pane().view(); }
    const TopicModel& model() { return static_cast<const TopicModel&>(*view().model()); }

    static void settle() { QApplication::processEvents(); }

    static void press(int key, const QString& text = {}) {
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, text);
            QApplication::sendEvent(QApplication::focusWidget(), &event);
        }
        settle();
    }

    static void type(const QString& text) {
        for (const QChar c : text) press(0, c);
    }

    void click(const QModelIndex& index, int x) {
        const QPoint at(x, view().visualRect(index).center().y());
        QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, at);
        settle();
    }

    QModelIndex topic(int row) { return model().index(row, 0); }
    QModelIndex entry(int topicRow, int row) { return model().index(row, 0, topic(topicRow)); }

    /// The titles marked as the place that is shown.
    QStringList marked() {
        QStringList titles;
        for (QModelIndex at = topic(0); at.isValid(); at = view().indexBelow(at)) {
            if (model().mark(at) == TopicModel::Mark::shown) titles += at.data().toString();
        }
        return titles;
    }

    bool inSight(const QModelIndex& index) {
        return index.isValid() && view().viewport()->rect().contains(view().visualRect(index));
    }

    SelectHost host_;
};

TEST_F(SelectPaneTest, KeysLeadThroughTheListAndBack) {
    press(Qt::Key_Down);
    EXPECT_TRUE(view().hasFocus());
    EXPECT_EQ(view().currentIndex(), topic(0)) << "the place on show";
    press(Qt::Key_Down);
    press(Qt::Key_Right);
    EXPECT_TRUE(view().isExpanded(topic(1)));
    press(Qt::Key_Right);
    EXPECT_EQ(view().currentIndex(), entry(1, 0));
    press(Qt::Key_Down);
    press(Qt::Key_Enter);
    EXPECT_EQ(host_.takeEvents(), (Lines{"page 410011 410010", "item 10011"}));
    press(Qt::Key_Left);
    EXPECT_EQ(view().currentIndex(), topic(1));
    press(Qt::Key_Left);
    EXPECT_FALSE(view().isExpanded(topic(1)));
    EXPECT_EQ(marked(), QStringList{"Τα αλκάλια"}) << "a closed topic stands for its entry";
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    EXPECT_TRUE(field().hasFocus());
}

TEST_F(SelectPaneTest, TypingInTheListGoesToTheField) {
    press(Qt::Key_Down);
    type("νε");
    EXPECT_TRUE(field().hasFocus());
    EXPECT_EQ(field().text(), "νε");
    press(Qt::Key_Down);
    press(Qt::Key_Backspace);
    EXPECT_EQ(field().text(), "ν");
    press(Qt::Key_Down);
    press(Qt::Key_Escape);
    EXPECT_EQ(field().text(), "");
    EXPECT_TRUE(view().hasFocus());
}

TEST_F(SelectPaneTest, ClicksChooseAndTheMarkerOnlyOpens) {
    click(topic(2), 5);
    EXPECT_TRUE(view().isExpanded(topic(2)));
    EXPECT_EQ(host_.takeEvents(), Lines{});
    click(entry(2, 1), 60);
    EXPECT_EQ(host_.takeEvents(), (Lines{"page 410020 410020", "item 20002"}));
    click(topic(3), 5);
    EXPECT_EQ(host_.takeEvents(), Lines{"page 410030 410030"}) << "a line without a marker";
    click(topic(2), 5);
    EXPECT_FALSE(view().isExpanded(topic(2)));
    click(topic(2), 60);
    EXPECT_TRUE(view().isExpanded(topic(2)));
    EXPECT_EQ(host_.takeEvents(), Lines{"page 410020 410020"});
    click(topic(2), 5);
    EXPECT_EQ(host_.takeEvents(), Lines{}) << "the line that the last click chose";
}

TEST_F(SelectPaneTest, TheMarkSurvivesNarrowing) {
    host_.call(6, 410010, 10011, false);
    settle();
    type("ι");
    EXPECT_EQ(marked(), QStringList{"Νάτριο"});
    type("θ");
    EXPECT_EQ(marked(), QStringList{"Τα αλκάλια"}) << "its entry is left out";
    press(Qt::Key_Escape);
    EXPECT_EQ(marked(), QStringList{"Νάτριο"});
    EXPECT_TRUE(inSight(view().currentIndex()));
}

TEST_F(SelectPaneTest, APlaceThatTheNarrowedListHidesEndsTheNarrowing) {
    type("λιθ");
    host_.call(5, sample::elements);
    host_.call(6, 410010, 10003, false);
    settle();
    EXPECT_EQ(field().text(), "λιθ") << "the place is listed";
    EXPECT_EQ(marked(), QStringList{"Λίθιο"}) << "its topic opened";
    host_.call(6, 410030, 0, false);
    settle();
    EXPECT_EQ(field().text(), "");
    EXPECT_EQ(marked(), QStringList{"Νερό"});
}

TEST_F(SelectPaneTest, AnEmptyListSaysSo) {
    const auto* note = pane().findChild<QLabel*>("emptyNote");
    EXPECT_FALSE(note->isVisible());
    type("ψψψ");
    EXPECT_TRUE(note->isVisible());
    EXPECT_EQ(note->text(), "Δεν βρέθηκε θέμα");
    // The word search is offered below it.
    press(Qt::Key_Down);
    EXPECT_FALSE(field().hasFocus());
    press(Qt::Key_Escape);
    EXPECT_FALSE(note->isVisible());
    EXPECT_TRUE(field().hasFocus());
}

TEST_F(SelectPaneTest, APlaceFarDownIsBroughtIntoSight) {
    formats::BrowseIndex index{{{sample::elements, {}}}};
    for (int i = 0; i < 500; ++i) {
        auto& topic = index.sections[0].topics.emplace_back(
            sample::topic(411001 + i, 411001 + i, "Θέμα "_gr.data() + std::to_string(i)));
        for (int j = 1; j <= 10; ++j) {
            topic.entries.push_back(
                sample::entry(10 * i + j, "Λήμμα "_gr.data() + std::to_string(10 * i + j)));
        }
    }
    host_.data.write("select.ndx", *formats::encodeBrowseIndex(index));
    pane().hide();
    host_.initialise();
    host_.call(6, 411451, 4507, false);
    showPane();
    EXPECT_EQ(marked(), QStringList{"Λήμμα 4507"});
    EXPECT_TRUE(inSight(entry(450, 6)));

    type("λημμα");
    EXPECT_EQ(view().currentIndex(), entry(0, 0));
    EXPECT_TRUE(inSight(entry(0, 0))) << "what Enter opens";
    press(Qt::Key_Escape);
    EXPECT_TRUE(inSight(entry(450, 6)));
    pane().resize(120, 300);
    settle();
    host_.call(6, 411001, 3, false);
    settle();
    EXPECT_TRUE(inSight(entry(0, 2)));
}

}  // namespace
