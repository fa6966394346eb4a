#pragma once

#include <QModelIndex>
#include <QWidget>
#include <functional>

#include "controls/select/model/BrowseSelection.h"

class QLabel;

namespace controls::select {

class ElsewhereList;
class FilterField;
class TopicModel;
class TopicView;

/// The browse selection on the screen: the name of the section, the text field and the list. The pane changes
/// the selection and shows its state. It tells the host the events of the reader's choices.
class SelectPane : public QWidget {
    Q_OBJECT

  public:
    /// What the pane asks of the host.
    struct Host {
        std::function<void(const ChoiceEvents&)> tellChoice;
        /// Goes to a section, which is then set here.
        std::function<void(std::int16_t)> openSection;
        /// Opens the word search with a text in code page 1253.
        std::function<void(const std::string&)> searchWord;
    };

    /// `selection` must outlive the pane.
    SelectPane(BrowseSelection& selection, Host host, QWidget* parent);

    void setIndex(formats::BrowseIndex index);
    void setSection(std::int16_t code);
    /// Shows a place that the host asks for and returns the answer.
    ChoiceEvents showPlace(const Place& place);
    /// Chooses the first match of the narrowed list, or the current line of the whole list.
    void openFirst();

    FilterField& field() { return *field_; }
    TopicView& view() { return *view_; }

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void layOutParts();
    void connectParts();
    template <class Change>
    void relist(Change&& change);
    void narrow(const QString& text);
    void choose(const Row& row);
    void enterList();
    void openElsewhere(const FoundElsewhere& match);
    void offerElsewhere();
    void markMoved();
    void revealLater();
    void revealShown();
    QModelIndex shownIndex() const;
    void updateHeader();
    void updateEmptyNote();

    BrowseSelection& selection_;
    Host host_;
    TopicModel* model_;
    QLabel* sectionName_;
    QWidget* rule_;
    FilterField* field_;
    TopicView* view_;
    QLabel* emptyNote_;
    ElsewhereList* elsewhere_;
    bool revealPending_ = false;
};

}  // namespace controls::select
