// The zoom of a document's view: it is laid out as for a screen of another resolution, and no size in it changes.
#pragma once

#include <QPaintDevice>
#include <QTextEdit>

namespace ui {

class ViewZoom {
 public:
  static constexpr int kLeast = 25;  // percent
  static constexpr int kMost = 800;

  /// Keeps the document that `edit` has.
  explicit ViewZoom(QTextEdit& edit);
  ~ViewZoom();
  ViewZoom(const ViewZoom&) = delete;
  ViewZoom& operator=(const ViewZoom&) = delete;

  [[nodiscard]] int percent() const { return device_.percent; }
  /// Held between the limits. What stands at the top of the view stays there.
  void setPercent(int percent);
  /// So many steps larger, or smaller where `steps` is negative.
  [[nodiscard]] int stepped(int steps) const;

 private:
  struct Device : QPaintDevice {
    explicit Device(const QWidget& screen) : base(screen) {}
    [[nodiscard]] QPaintEngine* paintEngine() const override { return nullptr; }
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override;

    const QWidget& base;
    int percent = 100;
  };

  QTextEdit& edit_;
  Device device_;
};

}  // namespace ui
