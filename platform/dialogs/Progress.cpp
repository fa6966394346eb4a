#include "platform/dialogs/Progress.h"

#include <QApplication>
#include <QProgressDialog>
#include <chrono>
#include <memory>

#include "platform/base/Resources.h"
#include "platform/dialogs/OwnerWindow.h"
#include "platform/drawing/LightPalette.h"
#include "platform/machine/Machine.h"
#include "platform/qt/QtConvert.h"

namespace platform {

namespace {

/// Milliseconds.
constexpr std::uint64_t cursorAfter = 500;
constexpr std::uint64_t boxAfter = 2000;
constexpr std::uint64_t redrawAfter = 50;

constexpr int wholeBar = 1000;
constexpr int boxWidth = 360;

/// By the machine's clock, or by the host's if there is no machine yet.
std::uint64_t milliseconds() {
    if (hasMachine()) return machine().milliseconds();
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

}  // namespace

/// The box that the user sees.
class CProgress::Box {
  public:
    explicit Box(const std::string& what) : dialog_(std::make_unique<QProgressDialog>(ownerWindow())) {
        stayInFrontOf(*dialog_, dialog_->parentWidget());
        dialog_->setPalette(lightPalette());
        dialog_->setWindowTitle(toQt(LoadString(AFX_IDS_APP_TITLE)));
        dialog_->setLabelText(toQt(what));
        dialog_->setCancelButtonText(QStringLiteral("Άκυρο"));
        dialog_->setWindowModality(Qt::ApplicationModal);
        dialog_->setFixedWidth(boxWidth);
        dialog_->setAutoClose(false);
        dialog_->setAutoReset(false);
        dialog_->setMinimumDuration(0);
        dialog_->show();
        QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~Box() { QApplication::restoreOverrideCursor(); }
    Box(const Box&) = delete;
    Box& operator=(const Box&) = delete;

    /// Shows the progress from time to time; false when the user has cancelled.
    bool show(std::uint64_t done, std::uint64_t total) {
        const std::uint64_t now = milliseconds();
        if (now < drawn_ + redrawAfter) return true;
        drawn_ = now;
        const double part = total == 0 ? 0.0 : static_cast<double>(done) / static_cast<double>(total);
        dialog_->setMaximum(total == 0 ? 0 : wholeBar);
        dialog_->setValue(static_cast<int>(part * wholeBar));
        QApplication::processEvents();
        return !dialog_->wasCanceled();
    }

  private:
    std::unique_ptr<QProgressDialog> dialog_;
    std::uint64_t drawn_ = 0;
};

CProgress::CProgress(std::string_view what) : what_(what), begin_(milliseconds()) {}

CProgress::~CProgress() = default;

bool CProgress::goOn(std::uint64_t done, std::uint64_t total) {
    if (cancelled_) return false;
    const std::uint64_t passed = milliseconds() - begin_;
    if (passed >= cursorAfter && !cursor_) cursor_.emplace();
    if (passed >= boxAfter && !asked_) ask();
    if (box_) cancelled_ = !box_->show(done, total);
    return !cancelled_;
}

void CProgress::ask() {
    asked_ = true;
    const std::vector<BoxAnswer> buttons = {BoxAnswer::ok, BoxAnswer::cancel};
    const std::optional<BoxAnswer> ready = hasMachine() ? machine().nextAnswer(buttons) : std::nullopt;
    if (!ready) {
        box_ = std::make_unique<Box>(what_);
        return;
    }
    machine().trace().record(TraceBox{what_, std::string(LoadString(AFX_IDS_APP_TITLE)), buttons, *ready});
    cancelled_ = *ready == BoxAnswer::cancel;
}

}  // namespace platform
