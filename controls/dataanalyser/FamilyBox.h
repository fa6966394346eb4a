#pragma once

#include <QComboBox>
#include <optional>

#include "controls/common/Element.h"

namespace controls::dataanalyser {

/// The choice of the family to list; its first line stands for all elements.
class FamilyBox : public QComboBox {
  public:
    explicit FamilyBox(QWidget* parent);

    std::optional<Family> family() const { return familyOfCode(currentIndex()); }
    void setFamily(std::optional<Family> family) { setCurrentIndex(family ? familyCode(*family) : 0); }

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace controls::dataanalyser
