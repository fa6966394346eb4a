#pragma once

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <map>
#include <memory>
#include <vector>

#include "platform/engine/PageQuestions.h"
#include "platform/qt/WindowTable.h"

class QWebEnginePage;
class QWebEngineView;

namespace platform {

/// Gives the frames of a page's embedded files windows of their own in the window table, as children of the
/// browser's window: class "Plugin", at the frame's place and as large as the page says, whatever its zoom.
/// They show nothing and take no input; what is seen there the engine has drawn. They follow the page as it
/// is loaded, scrolled and resized.
class PluginWindows : public QObject {
    Q_OBJECT

  public:
    static constexpr const char* className = "Plugin";

    PluginWindows(QWebEngineView& view, QWebEnginePage& page);
    ~PluginWindows() override;

    /// Whether the windows may not be where the frames are.
    bool busy() const { return limit_.isActive(); }
    /// Puts them there at once.
    void update();
    /// The picture that a plug-in gives of itself, as PNG; empty when the window is none or gives none.
    QByteArray picture(HWND window);

    bool eventFilter(QObject* view, QEvent* event) override;

  private:
    void clear();
    void updateSoon();
    void place(const std::vector<EmbeddedFrame>& frames);

    QWebEngineView& view_;
    QPointer<QWebEnginePage> page_;
    std::map<int, std::unique_ptr<QWidget>> windows_;  // by the number of the frame
    QTimer limit_;                                     // runs while the page is asked
    unsigned asked_ = 0;
};

}  // namespace platform
