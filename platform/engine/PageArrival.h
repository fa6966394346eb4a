#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <QUrl>
#include <functional>
#include <memory>

class QWebEnginePage;

namespace platform {

/// Waits until the page that was asked for last is on show. A page that leads on to another at once is not
/// the one waited for. A load that the engine lost is asked for again. A former page that lets no other begin
/// is ended.
class PageArrival : public QObject {
  public:
    /// `goOnElsewhere` is called when the process of the former page has ended before the page that is waited
    /// for has begun: `target` is then for another `QWebEnginePage` to load. The engine would show it in this
    /// one, but never print it.
    PageArrival(QWebEnginePage& page, std::function<void()> goOnElsewhere);

    /// Loads an address, in its normalised form, and waits for its page.
    void load(const QUrl& target);
    /// Loads the page on show again.
    void reload();
    /// The page has asked to go elsewhere, which may be refused.
    void interrupt();

    /// Whether it still waits. A page out of sight is not waited for to its end: the engine keeps the parts
    /// of it that need drawing, such as films, until it can be seen.
    bool pending() const;
    /// Whether the former page is still there, which may have stopped answering.
    bool isBefore() const { return pending_ && (begin_.isActive() || life_.isActive() || ended_); }
    /// The address loaded last.
    const QUrl& target() const { return target_; }

    /// To be called when the engine's load has ended: looks whether the page is the one waited for.
    void look();

  private:
    void begin();
    void settle(bool leadsOn);
    /// Whether the page on show is not that of the load asked for last: the end of an earlier load may be
    /// told after a later one was asked for.
    bool missed() const;
    void giveUp();
    void askForLife();
    void endFormerPage();
    void pageEnded();

    QWebEnginePage& page_;
    std::function<void()> goOnElsewhere_;
    QUrl target_;
    bool pending_ = false;
    QElapsedTimer begun_;
    QTimer begin_;        // runs until the page asked for must have begun
    QTimer life_;         // runs while the engine's page process is asked whether it still answers
    bool ended_ = false;  // whether that process has been ended for this load
    QTimer complete_;     // runs until a page that is not complete is looked at again
    QTimer limit_;        // runs while another page than that on show is expected
    int tries_ = 0;       // how often the load may still be asked for again
    // A new one for each load: it tells whether an answer of the engine is about the present page.
    std::shared_ptr<int> load_ = std::make_shared<int>();
};

}  // namespace platform
