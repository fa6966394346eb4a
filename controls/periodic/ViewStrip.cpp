#include "controls/periodic/ViewStrip.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "controls/common/Appearance.h"
#include "controls/common/QtText.h"
#include "platform/qt/QtChild.h"

namespace controls::periodic {

namespace {

constexpr int minPixels = 10;
constexpr int maxPixels = 15;
constexpr int padding = 4;
constexpr int paddingInWidths = 12;

int wantedWidth(TableView view) {
    return QFontMetrics(appearance::font(maxPixels)).horizontalAdvance(toQt(viewName(view))) +
           paddingInWidths;
}

}  // namespace

ViewButton::ViewButton(TableView view, TextFitter& fitter, QWidget* parent)
    : QRadioButton(toQt(viewName(view)), parent), fitter_(fitter) {
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    const auto quantity = quantityOf(view);
    setAccessibleName(toQt(quantity ? quantityName(*quantity) : viewName(view)));
    setAccessibleDescription(QStringLiteral("Προβολή του περιοδικού πίνακα"));
}

void ViewButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor ground = isChecked()    ? appearance::deep
                          : underMouse() ? appearance::selected
                                         : appearance::paper;
    painter.fillRect(rect(), ground);
    painter.fillRect(QRect(width() - 1, 0, 1, height()), appearance::line);
    if (hasFocus()) painter.fillRect(QRect(2, height() - 3, width() - 5, 2), appearance::warm);
    painter.setPen(isChecked() ? appearance::paper : appearance::deep);
    fitter_.draw(painter, rect().adjusted(padding, 0, -padding, 0), text(),
                 std::clamp(height() / 2, minPixels, maxPixels), Qt::AlignCenter,
                 isChecked() ? QFont::DemiBold : QFont::Normal);
}

ViewStrip::ViewStrip(TextFitter& fitter, const std::function<void(TableView)>& chosen, QWidget* parent)
    : QWidget(parent) {
    setAccessibleName(QStringLiteral("Προβολές"));
    for (const TableView view : viewOrder) {
        auto* button = &platform::makeQtChild<ViewButton>(view, fitter, this);
        connect(button, &QAbstractButton::clicked, this, [chosen, view] { chosen(view); });
        buttons_[static_cast<std::size_t>(view)] = button;
    }
}

void ViewStrip::setView(TableView view) { buttons_[static_cast<std::size_t>(view)]->setChecked(true); }

const QWidget& ViewStrip::button(TableView view) const { return *buttons_[static_cast<std::size_t>(view)]; }

void ViewStrip::place(const QRect& area, int rows) {
    setGeometry(area);
    // The last row of pixels is the line below the strip.
    const int height = (area.height() - rows) / rows;
    const std::size_t end = rows == 1 ? viewCount : firstOfSecondRow;
    placeRow({0, 0, area.width(), height}, 0, end);
    if (rows > 1) placeRow({0, height + 1, area.width(), height}, end, viewCount);
}

void ViewStrip::placeRow(const QRect& area, std::size_t first, std::size_t end) {
    int wanted = 0;
    for (std::size_t place = first; place < end; ++place) wanted += wantedWidth(viewOrder[place]);
    int before = 0;
    for (std::size_t place = first; place < end; ++place) {
        const TableView view = viewOrder[place];
        const int left = area.width() * before / wanted;
        before += wantedWidth(view);
        const int right = area.width() * before / wanted;
        buttons_[static_cast<std::size_t>(view)]->setGeometry(area.left() + left, area.top(), right - left,
                                                              area.height());
    }
}

void ViewStrip::paintEvent(QPaintEvent*) { QPainter(this).fillRect(rect(), appearance::line); }

}  // namespace controls::periodic
