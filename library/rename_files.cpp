#include "rename_files.h"

#include "detail/rename_step.h"

#include <QHash>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <utility>

namespace velmora {

namespace {

using portable::Reason;
using portable::ReasonCode;

Reason systemReason(int error) {
    return {ReasonCode::system, error, {}};
}

/** Renames on their way, one chain of names after the other. */
class RenameRun {
public:
    RenameRun(const std::vector<FileRename>& renames, const RenameProgress& progress)
        : renames_(renames), progress_(progress), reasons_(renames.size()), chained_(renames.size()) {
        for (std::size_t index = 0; index < renames.size(); ++index) {
            byOldName_.insert(renames[index].from, index);
        }
    }

    std::vector<std::optional<Reason>> run() {
        for (std::size_t index = 0; index < renames_.size(); ++index) {
            if (!chained_[index]) {
                runChain(chainFrom(index));
            }
        }
        return std::move(reasons_);
    }

private:
    struct Chain {
        std::vector<std::size_t> links; ///< each takes the name that the next one leaves
        bool circle = false;            ///< the last takes the first one's
    };

    Chain chainFrom(std::size_t first) {
        Chain chain;
        std::size_t index = first;
        while (!chained_[index]) {
            chained_[index] = true;
            chain.links.push_back(index);
            const auto next = byOldName_.constFind(renames_[index].to);
            if (next == byOldName_.constEnd() || *next == index) {
                return chain;
            }
            index = *next;
        }
        chain.circle = index == first;
        return chain;
    }

    void runChain(const Chain& chain) {
        if (chain.circle) {
            runCircle(chain.links);
            return;
        }
        // From the end: what comes later makes room for what comes earlier.
        for (auto link = chain.links.rbegin(); link != chain.links.rend(); ++link) {
            const FileRename& rename = renames_[*link];
            if (mayStart(*link)) {
                finish(*link, rename.from == rename.to ? 0 : renameWithoutReplacing(rename.from, rename.to));
            }
        }
    }

    /** Whether the run is not cancelled and the file is the one that is meant. */
    bool mayStart(std::size_t index) {
        cancelled_ = cancelled_ || (progress_ && !progress_(done_, renames_.size()));
        if (cancelled_) {
            reasons_[index] = Reason{ReasonCode::cancelled, 0, {}};
            return false;
        }
        const FileRename& rename = renames_[index];
        if (rename.identity && identityOf(rename.from) != rename.identity) {
            finish(index, Reason{ReasonCode::changed_meanwhile, 0, {}});
            return false;
        }
        return true;
    }

    void finish(std::size_t index, std::optional<Reason> reason) {
        reasons_[index] = std::move(reason);
        ++done_;
    }
    void finish(std::size_t index, int error) {
        finish(index, error == 0 ? std::nullopt : std::optional(systemReason(error)));
    }

    /** A circle is done whole or not at all. */
    void runCircle(const std::vector<std::size_t>& links) {
        for (const std::size_t index : links) {
            if (!mayStart(index)) {
                refuse(links, *reasons_[index]);
                return;
            }
        }
        int error = exchangeAround(links);
        if (error != 0) {
            error = moveAround(links);
        }
        for (const std::size_t index : links) {
            finish(index, error);
        }
    }

    void refuse(const std::vector<std::size_t>& links, const Reason& reason) {
        for (const std::size_t index : links) {
            reasons_[index] = reason;
        }
    }

    /** Each exchange gives one file its new name; the last gives two theirs. */
    int exchangeAround(const std::vector<std::size_t>& links) {
        const QByteArray& first = renames_[links.front()].from;
        for (std::size_t step = 1; step < links.size(); ++step) {
            const int error = exchangeNames(first, renames_[links[step]].from);
            if (error != 0) {
                while (--step > 0) {
                    static_cast<void>(exchangeNames(first, renames_[links[step]].from));
                }
                return error;
            }
        }
        return 0;
    }

    /** The last file steps aside, so that all others can move up. */
    int moveAround(const std::vector<std::size_t>& links) {
        std::vector<std::pair<QByteArray, QByteArray>> moves;
        const FileRename& last = renames_[links.back()];
        const QByteArray aside = unusedNameBeside(last.from);
        moves.emplace_back(last.from, aside);
        for (std::size_t step = links.size() - 1; step-- > 0;) {
            moves.emplace_back(renames_[links[step]].from, renames_[links[step]].to);
        }
        moves.emplace_back(aside, last.to);
        for (std::size_t step = 0; step < moves.size(); ++step) {
            const int error = renameWithoutReplacing(moves[step].first, moves[step].second);
            if (error != 0) {
                while (step-- > 0) {
                    static_cast<void>(renameWithoutReplacing(moves[step].second, moves[step].first));
                }
                return error;
            }
        }
        return 0;
    }

    const std::vector<FileRename>& renames_;
    const RenameProgress& progress_;
    std::vector<std::optional<Reason>> reasons_;
    std::vector<bool> chained_;
    QHash<QByteArray, std::size_t> byOldName_;
    std::size_t done_ = 0;
    bool cancelled_ = false;
};

} // namespace

std::optional<FileIdentity> identityOf(const QByteArray& path) {
    struct stat status {};
    if (::fstatat(AT_FDCWD, path.constData(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
        return std::nullopt;
    }
    return FileIdentity{status.st_dev, status.st_ino};
}

std::vector<std::optional<portable::Reason>> renameFiles(const std::vector<FileRename>& renames,
                                                         const RenameProgress& progress) {
    return RenameRun(renames, progress).run();
}

} // namespace velmora
