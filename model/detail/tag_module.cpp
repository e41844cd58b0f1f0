#include "tag_module.h"

#include "taglib/asf/load_file_info.h"
#include "taglib/asf/store_file_info.h"
#include "taglib/avi/load_file_info.h"
#include "taglib/avi/store_file_info.h"
#include "taglib/id3/load_file_info.h"
#include "taglib/id3/store_file_info.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

constexpr TagModule id3Module = {id3_load_file_info, id3_store_file_info};
constexpr TagModule asfModule = {
    asf_load_file_info, [](const char* path, _file_info_t* info) { return asf_store_file_info(path, info); }};
constexpr TagModule aviModule = {avi_load_file_info, avi_store_file_info};

struct ModuleRow {
    const char* extension;
    const TagModule* module;
};
constexpr std::array moduleTable = {
    ModuleRow{"asf", &asfModule}, ModuleRow{"wmv", &asfModule},  ModuleRow{"wma", &asfModule},
    ModuleRow{"avi", &aviModule}, ModuleRow{"divx", &aviModule},
};

} // namespace

const TagModule& tagModuleOfExtension(const QString& extension) {
    const auto* row = std::find_if(moduleTable.begin(), moduleTable.end(), [&](const ModuleRow& candidate) {
        return extension.compare(QLatin1String(candidate.extension), Qt::CaseInsensitive) == 0;
    });
    return row == moduleTable.end() ? id3Module : *row->module;
}

} // namespace velmora
