#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace velmora {

/** Lays widgets out in rows, as a text its words: as many in a row as there is room for, each at its
   preferred size. Needs no more width than its widest widget, and as much height as its rows have at its
   present width, so that it works in layouts that know nothing of heights that depend on widths. */
class WrappingLayout : public QLayout {
    Q_OBJECT
public:
    explicit WrappingLayout(QWidget* parent);
    ~WrappingLayout() override;

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override;
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    [[nodiscard]] QLayoutItem* takeAt(int index) override;

    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    /** The height of the rows when the layout is WIDTH wide. */
    [[nodiscard]] int heightAt(int width) const;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

private:
    /** The places of the items in AREA, which may be higher or lower than they need. */
    [[nodiscard]] std::vector<QRect> places(const QRect& area) const;

    std::vector<std::unique_ptr<QLayoutItem>> items_;
    int height_ = 0; ///< of the rows at the present width
};

} // namespace velmora
