#include <QTest>

#include "platform/qt/WindowTable.h"
#include "tests/support/browser/BrowserMachine.h"

using namespace platform;

namespace {

constexpr const char* classId = "0A1B2C3D-0000-4000-8000-00000000ABCD";

/// A browser in a window that handles commands, on a machine with one component.
class PagePart : public BrowserMachine {
  protected:
    PagePart() {
        copyFile(MODULES "/TestComponent.ocx", "C:\\ActiveX\\TestComponent.ocx");
        registry()
            .createKey(HKEY_CLASSES_ROOT, std::string("CLSID\\{") + classId + "}\\InprocServer32")
            ->setString("", "C:\\ActiveX\\TestComponent.ocx");
        WindowTable::instance().add(
            {&outer_, "Outer", 0, [this](UINT message, WPARAM, LPARAM lParam) -> LRESULT {
                 if (message == WM_COMMAND) commands_.push_back(lParam);
                 return 0;
             }});
        outer_.resize(640, 480);
        window.setParent(&outer_);
        WindowTable::instance().add({&window, "CWebBrowser", 1025, nullptr});
        outer_.show();
    }
    ~PagePart() override {
        closeBrowser();
        window.setParent(nullptr);
    }

    /// A page with the component in its top-left corner.
    void openWithObject(const std::string& id) {
        write("C:\\cache\\1.htm",
              "<BODY STYLE=\"margin:0\"><OBJECT CLASSID=\"clsid:" + id +
                  "\" WIDTH=200 HEIGHT=50 TITLE=\"όνομα\"><PARAM NAME=a VALUE=b></OBJECT>");
        open("C:\\cache\\1.htm");
    }

    QWidget outer_;
    std::vector<LPARAM> commands_;
};

TEST_F(PagePart, SendsOnlyTheCommandsOfItsComponent) {
    openWithObject(classId);
    EXPECT_TRUE(runUntil([&] { return text() == "όνομα"; }));
    QTest::mouseClick(input(), Qt::LeftButton, {}, {80, 10});
    QTest::mouseClick(input(), Qt::LeftButton, {}, {20, 10});
    EXPECT_TRUE(runUntil([&] { return !commands_.empty(); }));
    QTest::mouseClick(input(), Qt::LeftButton, {}, {20, 10});
    EXPECT_TRUE(runUntil([&] { return commands_.size() > 1; })) << "the part is still there";
    EXPECT_EQ(commands_, (std::vector<LPARAM>{4711, 4711}));
    EXPECT_EQ(asked.size(), 1U) << "a command is no navigation";
}

TEST_F(PagePart, SendsNothingWithoutAPress) {
    openWithObject(classId);
    write("C:\\cache\\2.htm", "<TITLE>2</TITLE><IFRAME SRC=\"2.htm?component=" + std::string(classId) +
                                  "&command=4711\"></IFRAME>");
    open("C:\\cache\\2.htm");
    run(500);
    EXPECT_EQ(title(), "2");
    EXPECT_TRUE(commands_.empty());
}

TEST_F(PagePart, OfAnUnknownClassIsEmpty) {
    openWithObject("0A1B2C3D-0000-4000-8000-000000000000");
    EXPECT_EQ(text(), "");
    EXPECT_EQ(count({0, 0, 640, 480}, Qt::white), 640 * 480);
}

}  // namespace
