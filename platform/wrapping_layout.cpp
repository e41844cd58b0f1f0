#include "wrapping_layout.h"

#include <algorithm>

namespace velmora {

WrappingLayout::WrappingLayout(QWidget* parent) : QLayout(parent) {}

WrappingLayout::~WrappingLayout() = default;

void WrappingLayout::addItem(QLayoutItem* item) {
    items_.emplace_back(item);
}

int WrappingLayout::count() const {
    return static_cast<int>(items_.size());
}

QLayoutItem* WrappingLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* WrappingLayout::takeAt(int index) {
    if (index < 0 || index >= count()) {
        return nullptr;
    }
    QLayoutItem* const taken = items_[static_cast<std::size_t>(index)].release();
    items_.erase(items_.begin() + index);
    return taken;
}

std::vector<QRect> WrappingLayout::places(const QRect& area) const {
    std::vector<QRect> rects;
    QPoint at = area.topLeft();
    int rowHeight = 0;
    for (const auto& item : items_) {
        const QSize size = item->sizeHint();
        if (at.x() > area.left() && at.x() + size.width() > area.left() + area.width()) {
            at = QPoint(area.left(), at.y() + rowHeight + spacing());
            rowHeight = 0;
        }
        rects.emplace_back(at, size.boundedTo(QSize(area.width(), size.height())));
        at.rx() += size.width() + spacing();
        rowHeight = std::max(rowHeight, size.height());
    }
    return rects;
}

int WrappingLayout::heightAt(int width) const {
    int bottom = 0;
    for (const QRect& place : places(QRect(0, 0, width, 0))) {
        bottom = std::max(bottom, place.top() + place.height());
    }
    return bottom;
}

QSize WrappingLayout::sizeHint() const {
    QSize size(0, 0);
    for (const auto& item : items_) {
        const QSize hint = item->sizeHint();
        size = QSize(size.width() + hint.width() + (size.width() > 0 ? spacing() : 0),
                     std::max(size.height(), hint.height()));
    }
    return size.expandedTo(QSize(0, height_));
}

QSize WrappingLayout::minimumSize() const {
    QSize size(0, 0);
    for (const auto& item : items_) {
        size = size.expandedTo(item->sizeHint());
    }
    return size.expandedTo(QSize(0, height_));
}

void WrappingLayout::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    const std::vector<QRect> rects = places(rect);
    for (std::size_t i = 0; i < items_.size(); ++i) {
        items_[i]->setGeometry(rects[i]);
    }
    if (const int height = heightAt(rect.width()); height != height_) {
        height_ = height;
        update();
    }
}

} // namespace velmora
