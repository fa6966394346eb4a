#include <QElapsedTimer>
#include <QEventLoop>
#include <QImage>
#include <QSize>
#include <QTimer>
#include <filesystem>
#include <fstream>

#include "platform/browser/BrowserPolicy.h"
#include "platform/browser/WebBrowserComponent.h"
#include "platform/qt/WindowTable.h"
#include "platform/windows/ChildWindows.h"
#include "platform/windows/ComponentContainer.h"
#include "tests/support/windows/TestProgram.h"

namespace windows_test {

using namespace platform;

namespace {

class Browser : public CWnd {
  public:
    const CRuntimeClass& GetRuntimeClass() const override {
        static constexpr CRuntimeClass runtimeClass{"CWebBrowser"};
        return runtimeClass;
    }
    void navigate(const std::string& address) {
        Invoke<void>(104, InvokeKind::method, address, Variant(), Variant(), Variant(), Variant());
    }
};

/// A browser of 600 × 400 pixels at (20, 10) of the view, with a page of a molecule above a video, both in
/// the middle, and a third file that is no plug-in's.
class PluginWindows : public ProgramTest {
  protected:
    PluginWindows() : ProgramTest(PAGES) {}

    void SetUp() override {
        write("x.mol", "\n\n\n  1  0\n    0.0000    0.0000    0.0000 O\n");
        std::filesystem::copy_file(FILM, PAGES "/x.webm", std::filesystem::copy_options::overwrite_existing);
        write("page.htm",
              "<BODY STYLE=\"margin:0;overflow:hidden\"><CENTER><EMBED SRC=x.mol WIDTH=340 HEIGHT=290><BR>"
              "<EMBED SRC=x.webm WIDTH=320 HEIGHT=258><BR><EMBED SRC=x.txt WIDTH=50 HEIGHT=50></CENTER>");
        write("empty.htm", "<BODY>");
        BrowserPolicy::instance().setAllowedFolders({"M:\\"});
        open({100, 80, 840, 560});
        ASSERT_TRUE(browser_.CreateControl(WebBrowserComponent::classId, "Web", WS_CHILD | WS_VISIBLE,
                                           CRect::at(20, 10, 600, 400), view(), 1025));
        show("page.htm");
    }

    static void write(const std::string& name, const std::string& text) {
        std::ofstream(std::string(PAGES "/") + name, std::ios::binary) << text;
    }

    void show(const std::string& page) {
        browser_.navigate("M:\\" + page);
        EXPECT_TRUE(runUntil([&] { return !componentHostOf(browser_.GetSafeHwnd())->component().busy(); }));
    }

    static bool runUntil(const std::function<bool()>& condition) {
        QElapsedTimer time;
        time.start();
        while (!condition() && time.elapsed() < 10000) {
            // The engine needs a loop that runs; processing what is there makes it slow.
            QEventLoop loop;
            QTimer::singleShot(5, &loop, &QEventLoop::quit);
            loop.exec();
        }
        return condition();
    }

    static std::vector<HWND> below(const CWnd& parent) {
        std::vector<HWND> windows;
        EnumChildWindows(parent.GetSafeHwnd(), [&](HWND window) {
            windows.push_back(window);
            return true;
        });
        return windows;
    }

    /// Where a plug-in's client area is in the browser's.
    CRect place(HWND window) const {
        const CPoint corner = browser_.ScreenToClient(ClientToScreen(window, {0, 0}));
        const CRect client = GetClientRect(window);
        return CRect::at(corner.x, corner.y, client.Width(), client.Height());
    }

    Browser browser_;
};

TEST_F(PluginWindows, StandBelowTheBrowserInTheOrderOfThePage) {
    const std::vector<HWND> windows = below(browser_);
    ASSERT_EQ(windows.size(), 2U);
    EXPECT_EQ(place(windows[0]), CRect::at(130, 0, 340, 290));
    EXPECT_EQ(place(windows[1]).Width(), 320);
    EXPECT_EQ(place(windows[1]).Height(), 258);
    EXPECT_EQ(CWnd::FromHandle(windows[0]), nullptr);
    const std::vector<HWND> belowView = below(view());
    EXPECT_EQ(belowView, (std::vector{browser_.GetSafeHwnd(), windows[0], windows[1]}));
    EXPECT_EQ(WindowFromPoint(browser_.ClientToScreen({200, 50})), &browser_) << "they take no clicks";
}

TEST_F(PluginWindows, FollowThePage) {
    const std::vector<HWND> before = below(browser_);
    browser_.MoveWindow(CRect::at(20, 10, 500, 400));
    EXPECT_TRUE(runUntil([&] { return place(below(browser_).at(0)) == CRect::at(80, 0, 340, 290); }));
    EXPECT_EQ(below(browser_), before);
    show("empty.htm");
    EXPECT_TRUE(below(browser_).empty());
    EXPECT_EQ(GetClientRect(before[0]), CRect());
    show("page.htm");
    EXPECT_EQ(below(browser_).size(), 2U);
    EXPECT_NE(below(browser_), before) << "a new page has new windows";
}

TEST_F(PluginWindows, AreNotEnumeratedFurtherThanWanted) {
    int calls = 0;
    EnumChildWindows(browser_.GetSafeHwnd(), [&](HWND) { return ++calls > 9; });
    EXPECT_EQ(calls, 1);
}

TEST_F(PluginWindows, GiveTheirPictures) {
    const std::vector<HWND> windows = below(browser_);
    ASSERT_EQ(windows.size(), 2U);
    const CBitmap molecule = PluginPicture(windows[0]);
    ASSERT_TRUE(molecule.Loaded());
    EXPECT_EQ(molecule.Width(), 340);
    EXPECT_EQ(molecule.Height(), 290);
    const CBitmap film = PluginPicture(windows[1]);
    ASSERT_TRUE(film.Loaded()) << "once it has a first picture";
    EXPECT_EQ(film.Width(), 320);
    EXPECT_EQ(film.Height(), 240) << "without the strip";
    EXPECT_FALSE(PluginPicture(browser_.GetSafeHwnd()).Loaded());
    EXPECT_FALSE(PluginPicture(0).Loaded());
}

TEST_F(PluginWindows, AreAskedForTheirPictureUntilTheyAreReady) {
    for (const char* file : {"x.mol", "x.webm"}) {
        SCOPED_TRACE(file);
        write("late.htm",
              std::string("<BODY><SCRIPT>setTimeout(() => document.body.innerHTML = '<EMBED SRC=") + file +
                  " WIDTH=320 HEIGHT=258>', 300)</SCRIPT>");
        show("late.htm");
        ASSERT_TRUE(runUntil([&] { return below(browser_).size() == 1; }));
        EXPECT_TRUE(PluginPicture(below(browser_)[0]).Loaded());
    }
}

// A film of 320 × 240 pixels, blue on the left and red on the right, in a frame that is wider.
TEST_F(PluginWindows, FitAFilmAsTheScaleSays) {
    const struct {
        const char* scale;
        QSize shown;
    } cases[] = {{"", {160, 120}},
                 {"SCALE=ASPECT", {160, 120}},
                 {"SCALE=TOFIT", {320, 120}},
                 {"SCALE=0.25", {80, 60}}};
    for (const auto& [scale, shown] : cases) {
        SCOPED_TRACE(scale);
        write("film.htm", std::string("<EMBED SRC=x.webm WIDTH=320 HEIGHT=138 ") + scale + ">");
        show("film.htm");
        const CBitmap film = PluginPicture(below(browser_).at(0));
        ASSERT_TRUE(film.Loaded());
        const QImage& picture = film.Image();
        const auto blueness = [&](int x, int y) { return picture.pixelColor(x, y).blue(); };
        const int left = 160 - shown.width() / 2;
        const int top = 60 - shown.height() / 2;
        EXPECT_GT(blueness(left + 3, top + 3), 150);
        EXPECT_GT(picture.pixelColor(left + shown.width() - 4, top + 3).red(), 150);
        if (left > 0) {
            EXPECT_LT(blueness(left - 4, 60), 50);
        }
        if (top > 0) {
            EXPECT_LT(blueness(150, top - 4), 50);
        }
    }
}

}  // namespace

}  // namespace windows_test
