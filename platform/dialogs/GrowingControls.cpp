#include "platform/dialogs/GrowingControls.h"

namespace platform {

void GrowingControls::begin(const std::vector<QWidget*>& controls, const QWidget& growing, QSize smallest) {
    smallest_ = smallest;
    const int left = growing.x();
    const int middle = growing.geometry().center().y();
    for (QWidget* const control : controls) {
        const QRect place = control->geometry();
        places_.push_back(
            {control,
             place,
             {place.left() > left, place.top() > middle, place.right() > left, place.bottom() > middle}});
    }
}

void GrowingControls::follow(QSize size) const {
    const QSize gain = size - smallest_;
    for (const auto& [control, place, share] : places_) {
        if (!control) continue;
        control->setGeometry(place.adjusted(share.left() * gain.width(), share.top() * gain.height(),
                                            share.right() * gain.width(), share.bottom() * gain.height()));
    }
}

}  // namespace platform
