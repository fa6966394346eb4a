#pragma once

#include <QModelIndex>
#include <QWidget>
#include <functional>

#include "controls/select/model/BrowseSelection.h"

class QLabel;

namespace controls::select {

class FilterField;
class TopicModel;
class TopicView;

/// The browse selection on the screen: the name of the section, the text field and the list. The pane changes
/// the selection and shows its state. It gives the events of the reader's choices to `onChoice`.
class SelectPane : public QWidget {
    Q_OBJECT

  public:
    using ChoiceHandler = std::function<void(const ChoiceEvents&)>;

    /// `selection` must outlive the pane.
    SelectPane(BrowseSelection& selection, ChoiceHandler onChoice, QWidget* parent);

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
    void markMoved();
    void revealLater();
    void revealShown();
    QModelIndex shownIndex() const;
    void updateHeader();
    void updateEmptyNote();

    BrowseSelection& selection_;
    ChoiceHandler onChoice_;
    TopicModel* model_;
    QLabel* sectionName_;
    QWidget* rule_;
    FilterField* field_;
    TopicView* view_;
    QLabel* emptyNote_;
    bool revealPending_ = false;
};

}  // namespace controls::select
