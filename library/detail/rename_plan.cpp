#include "rename_plan.h"

#include "file_name.h"

#include "platform/file_path.h"

#include <QHash>

namespace velmora {

namespace {

/** PATH as a file system that does not tell case apart sees it. */
QString withoutCase(const QByteArray& path) {
    return pathFromBytes(path).toCaseFolded();
}

PlannedRename renameOf(const RenameRow& row, const NamePattern& pattern) {
    PlannedRename planned;
    planned.from = pathBytes(row.path);
    planned.to = planned.from;
    if (hasFixedName(planned.from)) {
        planned.mark = RenameMark::fixedName;
        return planned;
    }
    const auto text = pattern.nameFrom(row.values, lastPathComponent(pathFolder(row.path)));
    if (const auto* const missing = std::get_if<portable::Field>(&text)) {
        planned.mark = RenameMark::missingValue;
        planned.missing = *missing;
        return planned;
    }
    const std::optional<FileName> name = fileNameOf(std::get<QString>(text), extensionOf(planned.from));
    if (!name) {
        planned.mark = RenameMark::noName;
        return planned;
    }
    planned.to = planned.from.left(planned.from.lastIndexOf('/') + 1) + name->bytes;
    planned.mark = planned.to == planned.from ? RenameMark::unchanged
                   : name->shortened          ? RenameMark::shortened
                                              : RenameMark::renamed;
    return planned;
}

/** Finds the names that can't be given. */
class ClashSearch {
public:
    /** Of PLAN only the first OWN rows can be told that they clash with another one of it. */
    ClashSearch(std::vector<PlannedRename>& plan, std::size_t own) : plan_(plan), own_(own) {
        for (std::size_t index = 0; index < plan.size(); ++index) {
            byOldName_.insert(plan[index].from, index);
            if (plan[index].isRenamed()) {
                byNewName_.insert(withoutCase(plan[index].to), index);
            }
        }
    }

    void run() {
        markSharedNames();
        markTakenNames();
        for (std::size_t index = 0; index < plan_.size(); ++index) {
            if (!plan_[index].isRenamed()) {
                markWhoeverWants(index);
            }
        }
    }

private:
    /** None of those that want one name gets it: which of them should is not ours to say. */
    void markSharedNames() {
        for (const QString& name : byNewName_.uniqueKeys()) {
            const QList<std::size_t> rows = byNewName_.values(name);
            for (const std::size_t index : rows) {
                if (rows.size() > 1 && index < own_) {
                    plan_[index].mark = RenameMark::clashesWithRow;
                }
            }
        }
    }

    void markTakenNames() {
        for (PlannedRename& planned : plan_) {
            if (!planned.isRenamed() || byOldName_.contains(planned.to)) {
                continue;
            }
            // In a file system that does not tell case apart, the name may be the file's own.
            const std::optional<FileIdentity> there = identityOf(planned.to);
            const bool own =
                withoutCase(planned.from) == withoutCase(planned.to) && there == identityOf(planned.from);
            if (there && !own) {
                planned.mark = RenameMark::clashesWithFile;
            }
        }
    }

    /** The row STAYING keeps its name, which nobody can have then; so that row stays, too, and so on. */
    void markWhoeverWants(std::size_t staying) {
        std::vector<std::size_t> stay = {staying};
        while (!stay.empty()) {
            const QString name = withoutCase(plan_[stay.back()].from);
            stay.pop_back();
            for (auto row = byNewName_.constFind(name); row != byNewName_.constEnd() && row.key() == name;
                 ++row) {
                if (plan_[*row].isRenamed()) {
                    plan_[*row].mark = RenameMark::clashesWithRow;
                    stay.push_back(*row);
                }
            }
        }
    }

    std::vector<PlannedRename>& plan_;
    std::size_t own_;
    QHash<QByteArray, std::size_t> byOldName_;
    QMultiHash<QString, std::size_t> byNewName_;
};

} // namespace

std::vector<PlannedRename> planRenames(const std::vector<RenameRow>& rows, const NamePattern& pattern,
                                       const std::vector<FileRename>& others) {
    std::vector<PlannedRename> plan;
    plan.reserve(rows.size() + others.size());
    for (const RenameRow& row : rows) {
        plan.push_back(renameOf(row, pattern));
    }
    for (const FileRename& other : others) {
        plan.push_back({other.from, other.to, RenameMark::renamed});
    }
    ClashSearch(plan, rows.size()).run();
    plan.resize(rows.size());
    return plan;
}

} // namespace velmora
