#include "tests/support/windows/TestProgram.h"

#include <QTest>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <array>

#include "platform/base/Resources.h"
#include "platform/text/GreekLiteral.h"
#include "platform/windows/MessageMap.h"

/// Resources in a library are linked in when they are named, which must be outside of any namespace.
static void initTestResources() { Q_INIT_RESOURCE(resources); }

namespace windows_test {

using namespace platform;
using namespace platform::literals;

namespace {

constexpr std::array fileItems = {
    MenuItem{"Εντολή"_gr, idSwitchable},  MenuItem{},
    MenuItem{"Έγγραφο"_gr, idByDocument}, MenuItem{"Άγνωστη"_gr, idUnhandled},
    MenuItem{"Έξοδος"_gr, idExit},
};
constexpr std::array menus = {Menu{"Αρχείο"_gr, fileItems}, Menu{"Βοήθεια"_gr, fileItems}};
constexpr std::array accelerators = {
    Accelerator{"Ctrl+Z", idSwitchable},
    Accelerator{"Alt+Backspace", idSwitchable},
    Accelerator{"Shift+Del", idByDocument},
    Accelerator{"F6", idUnhandled},
};
constexpr std::array strings = {StringResource{AFX_IDS_APP_TITLE, "Δοκιμή"_gr}};
constexpr std::array cursors = {CursorResource{1, {3, 5}}};

MachineConfig configuration(const std::string& modules) {
    MachineConfig config;
    config.drives['M'] = {DriveType::fixed, modules};
    return config;
}

/// The native window of a window's frame, and the point in it.
struct Spot {
    QWindow* window;
    QPoint point;
};

Spot spot(const CWnd& window, int x, int y) {
    QWidget* const top = widgetOf(window).window();
    const CPoint screen = window.ClientToScreen({x, y});
    return {top->windowHandle(), top->mapFromGlobal(QPoint(screen.x, screen.y))};
}

}  // namespace

const CRuntimeClass TestDocument::runtimeClass = MakeRuntimeClass<TestDocument>("TestDocument");
const CRuntimeClass TestView::runtimeClass = MakeRuntimeClass<TestView>("TestView");
const CRuntimeClass TestFrame::runtimeClass = MakeRuntimeClass<TestFrame>("TestFrame");
std::optional<CRect> TestFrame::firstPlace;

const MessageMap* TestDocument::GetMessageMap() const {
    static constexpr MessageMapEntry entries[] = {OnCommandId<&TestDocument::onCommand>(idByDocument)};
    static const MessageMap map{nullptr, entries};
    return &map;
}

void TestDocument::onCommand() { Log::instance().add("document command"); }

const MessageMap* TestView::GetMessageMap() const {
    static constexpr MessageMapEntry entries[] = {
        OnCommandId<&TestView::onSwitchable>(idSwitchable),
        OnUpdateId<&TestView::onUpdateSwitchable>(idSwitchable),
    };
    static const MessageMap map{CView::GetMessageMap(), entries};
    return &map;
}

const EventSinkMap* TestView::GetEventSinkMap() const {
    static constexpr EventSinkEntry entries[] = {OnComponentEvent<&TestView::onEvent>(1035, 1)};
    static const EventSinkMap map{nullptr, entries};
    return &map;
}

void TestView::OnInitialUpdate() { firstClient = GetClientRect(); }

void TestView::OnDraw(CDC& dc) {
    if (draw) draw(dc);
}

void TestView::onSwitchable() { Log::instance().add("view command"); }

void TestView::onUpdateSwitchable(CCmdUI& ui) {
    ui.Enable(enabled);
    ui.SetCheck(enabled);
}

bool TestView::onEvent(std::int32_t number, const std::string& text) {
    Log::instance().add("view event " + std::to_string(number) + " " + text);
    return true;
}

bool TestFrame::PreCreateWindow(CREATESTRUCT& cs) {
    if (firstPlace) {
        cs.x = firstPlace->left;
        cs.y = firstPlace->top;
        cs.cx = firstPlace->Width();
        cs.cy = firstPlace->Height();
        cs.defaultPlacement = false;
    }
    return CFrameWnd::PreCreateWindow(cs);
}

TestApplication::TestApplication() {
    AddDocTemplate(std::make_unique<CSingleDocTemplate>(TestDocument::runtimeClass, TestFrame::runtimeClass,
                                                        TestView::runtimeClass));
}

const MessageMap* TestApplication::GetMessageMap() const {
    static constexpr MessageMapEntry entries[] = {OnCommandId<&TestApplication::onCommand>(idByApplication)};
    static const MessageMap map{nullptr, entries};
    return &map;
}

void TestApplication::onCommand() { Log::instance().add("application command"); }

bool TestApplication::PreTranslateMessage(const MSG& message) {
    if (filter && filter(message)) return true;
    return CWinApp::PreTranslateMessage(message);
}

ProgramTest::ProgramTest(const std::string& modules)
    : machine_(::testing::TempDir(), configuration(modules), Registry()) {
    initTestResources();
    SetResources({menus, accelerators, strings, cursors, "test"});
    setMachine(&machine_);
    machine_.trace().enable();
    machine_.enableAnswers();
    log().clear();
    app_ = std::make_unique<TestApplication>();
}

ProgramTest::~ProgramTest() {
    app_.reset();
    settle();
    setMachine(nullptr);
    TestFrame::firstPlace.reset();
}

void ProgramTest::open(const CRect& place) {
    TestFrame::firstPlace = place;
    ASSERT_TRUE(app_->InitInstance());
    settle();
}

std::unique_ptr<TestWnd> ProgramTest::child(const std::string& name, const CRect& rect) {
    auto window = std::make_unique<TestWnd>();
    window->name = name;
    EXPECT_TRUE(window->CreateWnd(name, WS_CHILD | WS_VISIBLE, rect, view(), 7));
    settle();
    return window;
}

void ProgramTest::useDialogs(std::span<const DialogTemplate> dialogs) {
    ResourceTable resources = Resources();
    resources.dialogs = dialogs;
    SetResources(resources);
}

int ProgramTest::show(CDialog& dialog, const std::function<void()>& use) {
    if (!app_->GetMainWnd()) open();
    QTimer::singleShot(0, [&] {
        settle();
        use();
    });
    return dialog.DoModal();
}

void ProgramTest::press(const CWnd& window, int x, int y, Qt::MouseButton button) {
    const Spot at = spot(window, x, y);
    QTest::mousePress(at.window, button, {}, at.point);
}

void ProgramTest::release(const CWnd& window, int x, int y, Qt::MouseButton button) {
    const Spot at = spot(window, x, y);
    QTest::mouseRelease(at.window, button, {}, at.point);
}

void ProgramTest::doubleClick(const CWnd& window, int x, int y) {
    const Spot at = spot(window, x, y);
    QTest::mouseDClick(at.window, Qt::LeftButton, {}, at.point);
}

void ProgramTest::moveMouse(const CWnd& window, int x, int y) {
    const Spot at = spot(window, x, y);
    QTest::mouseMove(at.window, at.point);
}

void ProgramTest::pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    const bool types = key < 0xFFFF && !(modifiers & (Qt::ControlModifier | Qt::AltModifier));
    const QString text = types ? QString(QChar(key)).toLower() : QString();
    QTest::sendKeyEvent(QTest::Click, widgetOf(frame()).windowHandle(), key, text, modifiers);
}

}  // namespace windows_test
