#include "controls/common/NamedComponent.h"

#include <QPainter>
#include <memory>
#include <string>
#include <utility>

#include "controls/common/Appearance.h"
#include "controls/common/Version.h"

namespace controls {

namespace {

constexpr int margin = 8;
constexpr int barHeight = 3;
constexpr int maxPixels = 18;
constexpr int minPixels = 8;

/// Shows a name.
class NamePlate : public QWidget {
  public:
    NamePlate(QString name, QWidget* parent) : QWidget(parent), name_(std::move(name)) {
        setAccessibleName(name_);
    }
    QSize sizeHint() const override { return {200, 48}; }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), appearance::paper);
        painter.fillRect(0, height() - barHeight, width(), barHeight, appearance::warm);
        const QRect inner = rect().adjusted(margin, 0, -margin, -barHeight);
        const auto font =
            appearance::fittingFont(name_, inner.width(), maxPixels, minPixels, QFont::DemiBold);
        painter.setFont(font.value_or(appearance::font(minPixels)));
        painter.setPen(appearance::deep);
        painter.drawText(inner, Qt::AlignCenter, name_);
    }

  private:
    QString name_;
};

}  // namespace

NamedComponent::NamedComponent(const QString& name, platform::InvokeKind versionKind,
                               std::string_view versionName, QWidget* parent)
    : operations_{{{1, versionKind, versionName, {}}}}, plate_(new NamePlate(name, parent)) {}

NamedComponent::~NamedComponent() { const std::unique_ptr<QWidget> last(plate_.data()); }

std::optional<platform::Variant> NamedComponent::invoke(std::int32_t dispid, platform::InvokeKind kind,
                                                        std::span<const platform::Variant> arguments) {
    const platform::OperationInfo& ask = operations_.front();
    if (dispid != ask.dispid || kind != ask.kind || !arguments.empty()) return std::nullopt;
    return platform::Variant(std::string(version));
}

}  // namespace controls
