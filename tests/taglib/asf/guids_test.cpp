#include "taglib/asf/guids.h"

#include "support/bytes.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>

namespace velmora {
namespace {

using test::hex;

struct KnownGuid {
    const char* name;
    GUID guid;
    std::string_view bytes;
};

void PrintTo(const KnownGuid& known, std::ostream* stream) {
    *stream << known.name;
}

class Guids : public testing::TestWithParam<KnownGuid> {};

TEST_P(Guids, LieInAFileWithTheFirstThreeGroupsLittleEndian) {
    const std::string bytes(reinterpret_cast<const char*>(GetParam().guid.bytes), 16);
    EXPECT_EQ(hex(GetParam().bytes), bytes) << test::to_hex(bytes);
}

INSTANTIATE_TEST_SUITE_P(
    All, Guids,
    testing::Values(
        KnownGuid{"HeaderObject", ASF_HeaderObject, "30 26 B2 75 8E 66 CF 11 A6 D9 00 AA 00 62 CE 6C"},
        KnownGuid{"ContentDescription", ASF_ContentDescription,
                  "33 26 B2 75 8E 66 CF 11 A6 D9 00 AA 00 62 CE 6C"},
        KnownGuid{"ExtendedContentDescription", ASF_ExtendedContentDescription,
                  "40 A4 D0 D2 07 E3 D2 11 97 F0 00 A0 C9 5E A8 50"},
        KnownGuid{"PaddingObject", ASF_PaddingObject, "74 D4 06 18 DF CA 09 45 A4 BA 9A AB CB 96 AA E8"},
        KnownGuid{"DataObject", ASF_DataObject, "36 26 B2 75 8E 66 CF 11 A6 D9 00 AA 00 62 CE 6C"},
        KnownGuid{"FileProperties", ASF_FileProperties, "A1 DC AB 8C 47 A9 CF 11 8E E4 00 C0 0C 20 53 65"},
        KnownGuid{"StreamHeader", ASF_StreamHeader, "91 07 DC B7 B7 A9 CF 11 8E E6 00 C0 0C 20 53 65"},
        KnownGuid{"HeaderExtension", ASF_HeaderExtension, "B5 03 BF 5F 2E A9 CF 11 8E E3 00 C0 0C 20 53 65"},
        KnownGuid{"CodecList", ASF_CodecList, "40 52 D1 86 1D 31 D0 11 A3 A4 00 A0 C9 03 48 F6"},
        KnownGuid{"SimpleIndexObject", ASF_SimpleIndexObject,
                  "90 08 00 33 B1 E5 CF 11 89 F4 00 A0 C9 03 49 CB"},
        KnownGuid{"AudioStream", ASF_AudioStream, "40 9E 69 F8 4D 5B CF 11 A8 FD 00 80 5F 5C 44 2B"},
        KnownGuid{"VideoStream", ASF_VideoStream, "C0 EF 19 BC 4D 5B CF 11 A8 FD 00 80 5F 5C 44 2B"},
        KnownGuid{"NoErrorCorrection", ASF_NoErrorCorrection,
                  "00 57 FB 20 55 5B CF 11 A8 FD 00 80 5F 5C 44 2B"},
        KnownGuid{"Reserved1", ASF_Reserved1, "11 D2 D3 AB BA A9 CF 11 8E E6 00 C0 0C 20 53 65"},
        KnownGuid{"Reserved2", ASF_Reserved2, "41 52 D1 86 1D 31 D0 11 A3 A4 00 A0 C9 03 48 F6"},
        KnownGuid{"ClientGuid", ASF_ClientGuid, "32 2E 26 8D 28 FC D7 11 A9 EA 00 04 5A 6B 76 C2"}),
    [](const auto& instance) { return instance.param.name; });

} // namespace
} // namespace velmora
