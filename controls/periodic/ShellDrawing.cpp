#include "controls/periodic/ShellDrawing.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "controls/common/Appearance.h"
#include "controls/common/QtText.h"
#include "controls/elements/ElectronShells.h"

namespace controls::periodic {

namespace {

/// Atoms with fewer shells than this are drawn smaller.
constexpr int fewShells = 4;
constexpr double nucleusShare = 0.2;
constexpr QColor electron{0x3A, 0x7A, 0xA0};
constexpr QColor outerElectron{0xB2, 0x50, 0x22};
constexpr QColor orbit{0xB4, 0xC2, 0xCE};

/// The measures of a drawing.
struct Atom {
    QPointF center;
    double outermost;  // radius of the circle farthest out
    int places;        // circles from the nucleus to that one
    double nucleus;
    double dot;

    double radius(int shell) const { return nucleus + (outermost - nucleus) * shell / places; }
};

Atom atomIn(const QRect& area, int shells) {
    const double half = std::min(area.width(), area.height()) / 2.0;
    const double dot = std::max(half / 36, 1.2);
    return {QRectF(area).center(), half - dot - 0.5, std::max(shells, fewShells), half * nucleusShare, dot};
}

/// Draws the circle of a shell with its electrons, the first of them at the top.
void paintShell(QPainter& painter, const Atom& atom, int shell, int electrons, const QColor& color) {
    const double radius = atom.radius(shell);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(orbit, 1));
    painter.drawEllipse(atom.center, radius, radius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    for (int i = 0; i < electrons; ++i) {
        const double angle = 2 * std::numbers::pi * i / electrons - std::numbers::pi / 2;
        painter.drawEllipse(atom.center + radius * QPointF(std::cos(angle), std::sin(angle)), atom.dot,
                            atom.dot);
    }
}

void paintNucleus(QPainter& painter, TextFitter& fitter, const Atom& atom, const Element& element) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(appearance::deep);
    painter.drawEllipse(atom.center, atom.nucleus, atom.nucleus);
    painter.setPen(appearance::paper);
    const int side = static_cast<int>(atom.nucleus * 2);
    const QPoint corner = (atom.center - QPointF(atom.nucleus, atom.nucleus)).toPoint();
    fitter.draw(painter, QRect(corner, QSize(side, side)), toQt(element.symbol), side / 2, Qt::AlignCenter,
                QFont::Bold);
}

}  // namespace

void paintShells(QPainter& painter, TextFitter& fitter, const QRect& area, const Element& element) {
    const auto shells = shellsOf(element);
    const int count = static_cast<int>(shells.size());
    const Atom atom = atomIn(area, count);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (int shell = 1; shell <= count; ++shell) {
        paintShell(painter, atom, shell, shells[static_cast<std::size_t>(shell) - 1],
                   shell == count ? outerElectron : electron);
    }
    paintNucleus(painter, fitter, atom, element);
    painter.restore();
}

}  // namespace controls::periodic
