#include <QApplication>
#include <QContextMenuEvent>
#include <QTest>

#include "tests/support/windows/TestProgram.h"

namespace windows_test {

using namespace platform;

namespace {

/// Counts the events that reach it, and ignores them.
class Probe : public QWidget {
  public:
    explicit Probe(QWidget* parent, QRect place) : QWidget(parent) {
        setGeometry(place);
        show();
    }
    std::vector<QEvent::Type> seen;

  protected:
    bool event(QEvent* event) override {
        const QEvent::Type type = event->type();
        if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
            type == QEvent::KeyPress || type == QEvent::ContextMenu) {
            seen.push_back(type);
        }
        return QWidget::event(event);
    }
};

/// Plain widgets inside the view, as components have them.
class InputFilterTest : public ProgramTest {
  protected:
    void SetUp() override {
        open();
        outer_ = std::make_unique<Probe>(&widgetOf(view()), QRect(20, 30, 100, 100));
        inner_ = std::make_unique<Probe>(outer_.get(), QRect(10, 10, 50, 50)).release();
        settle();
        app().filter = [this](const MSG& message) {
            if (message.message == WM_MOUSEMOVE) return false;
            asked_.push_back(describe(message.message, message.wParam, message.lParam));
            windows_.push_back(message.hwnd);
            return message.message == swallowed_;
        };
    }
    void contextMenu(QWidget& widget, QContextMenuEvent::Reason reason) {
        QContextMenuEvent event(reason, QPoint(2, 3), widget.mapToGlobal(QPoint(2, 3)));
        QApplication::sendEvent(&widget, &event);
    }

    std::unique_ptr<Probe> outer_;
    Probe* inner_ = nullptr;
    UINT swallowed_ = 0;
    Lines asked_;
    std::vector<HWND> windows_;
};

TEST_F(InputFilterTest, SeesInputOfAnyWidgetOnceWithTheNearestWindow) {
    click(view(), 35, 45);
    EXPECT_EQ(asked_, (Lines{"WM_LBUTTONDOWN 35,45", "WM_LBUTTONUP 35,45"}));
    EXPECT_EQ(windows_, (std::vector<HWND>{view().GetSafeHwnd(), view().GetSafeHwnd()}));
    // The inner widget ignored the press, so Qt passed it on to the outer one and to the view.
    EXPECT_EQ(outer_->seen, (std::vector{QEvent::MouseButtonPress, QEvent::MouseButtonRelease}));
    click(view(), 35, 45, Qt::RightButton);
    EXPECT_EQ(asked_.size(), 4U);
}

TEST_F(InputFilterTest, SeesInputThatIsSentStraightToAWidget) {
    QTest::mouseClick(inner_, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::keyClick(inner_, Qt::Key_A);
    EXPECT_EQ(asked_, (Lines{"WM_LBUTTONDOWN 35,45", "WM_LBUTTONUP 35,45", "WM_KEYDOWN 65", "WM_KEYUP"}));
}

TEST_F(InputFilterTest, SwallowsRightClicksOnPlainWidgets) {
    swallowed_ = WM_RBUTTONDOWN;
    click(view(), 35, 45, Qt::RightButton);
    QTest::mouseClick(inner_, Qt::RightButton, {}, QPoint(5, 5));
    contextMenu(*inner_, QContextMenuEvent::Mouse);
    EXPECT_EQ(inner_->seen, std::vector{QEvent::MouseButtonRelease}) << "releases were not swallowed";
    EXPECT_EQ(log().count("WM_RBUTTONDOWN"), 0U);
    inner_->seen.clear();
    contextMenu(*inner_, QContextMenuEvent::Keyboard);
    EXPECT_EQ(inner_->seen, std::vector{QEvent::ContextMenu});
    inner_->seen.clear();
    swallowed_ = 0;
    click(view(), 60, 70, Qt::RightButton);
    EXPECT_EQ(inner_->seen.size(), 3U) << "press, menu and release";
}

TEST_F(InputFilterTest, LooksAtDialogsToo) {
    QWidget dialog(&widgetOf(frame()), Qt::Dialog);
    Probe probe(&dialog, QRect(0, 0, 20, 20));
    dialog.show();
    settle();
    swallowed_ = WM_RBUTTONDOWN;
    QTest::mouseClick(&probe, Qt::RightButton);
    EXPECT_EQ(probe.seen, std::vector{QEvent::MouseButtonRelease});
    EXPECT_EQ(windows_, (std::vector<HWND>{0, 0})) << "the dialog is not part of the frame";
}

}  // namespace

}  // namespace windows_test
