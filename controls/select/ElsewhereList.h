#pragma once

#include <QTextBrowser>
#include <functional>
#include <vector>

#include "controls/select/model/BrowseSelection.h"

namespace controls::select {

/// What is offered when no title of the section passes the filter: links to the titles of other sections, and
/// to the word search.
class ElsewhereList : public QTextBrowser {
    Q_OBJECT

  public:
    using MatchHandler = std::function<void(const FoundElsewhere&)>;
    using SearchHandler = std::function<void()>;

    ElsewhereList(MatchHandler onMatch, SearchHandler onSearch, QWidget* parent);

    /// Offers these titles, and the search of the word.
    void offer(std::vector<FoundElsewhere> matches, const QString& word);
    /// Takes the focus and goes to the first link.
    void enter();

  signals:
    /// Emitted when Esc is pressed.
    void escaped();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void follow(const QString& link);

    MatchHandler onMatch_;
    SearchHandler onSearch_;
    std::vector<FoundElsewhere> matches_;
};

}  // namespace controls::select
