#pragma once

#include <QAbstractListModel>
#include <QStringList>

namespace velmora {

/** The genres that the genre box suggests, in list order, each in the person's language. */
[[nodiscard]] QStringList localisedGenres();

/** The parental ratings, the empty one (no rating) first. They are names of their own and are not translated.
 */
[[nodiscard]] QStringList ratingTitles();

/** What a combo box with a data source asks for its items. */
class ComboBoxDataSource {
public:
    virtual ~ComboBoxDataSource() = default;
    [[nodiscard]] virtual int numberOfItemsInComboBox() const = 0;
    /** INDEX is below numberOfItemsInComboBox(). */
    [[nodiscard]] virtual QString comboBoxObjectValueForItemAtIndex(int index) const = 0;
};

/** Lets a combo box show the items of a data source, which outlives the model. */
class ComboBoxModel : public QAbstractListModel {
    Q_OBJECT
public:
    explicit ComboBoxModel(const ComboBoxDataSource& source, QObject* parent = nullptr)
        : QAbstractListModel(parent), source_(source) {}

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    const ComboBoxDataSource& source_;
};

} // namespace velmora
