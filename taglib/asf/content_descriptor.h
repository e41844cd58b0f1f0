#pragma once

#include "taglib/fio.h"

#include <cstdint>

/** One named, typed value of the Extended Content Description object (docs/asf.md, "Extended Content
   Description"). */
namespace velmora {

/** Value types. A file may hold others: those are kept and written back unchanged. */
namespace asf_value_type {
inline constexpr std::uint16_t unicode = 0;   ///< UTF-16LE text
inline constexpr std::uint16_t bytearray = 1; ///< raw bytes
inline constexpr std::uint16_t boolean = 2;   ///< 32-bit
inline constexpr std::uint16_t dword = 3;     ///< 32-bit
inline constexpr std::uint16_t qword = 4;     ///< 64-bit
inline constexpr std::uint16_t word = 5;      ///< 16-bit
} // namespace asf_value_type

/** Both buffers are owned (malloc family). */
struct _asf_content_descriptor_t {
    std::uint16_t name_length;  ///< bytes
    std::uint8_t* name;         ///< raw UTF-16LE, maybe without a terminator; null for length 0
    std::uint16_t type;         ///< asf_value_type, or what else the file has
    std::uint16_t value_length; ///< bytes
    std::uint8_t* value;        ///< as in the file; null for length 0
};

/** A zeroed record, or null when memory is exhausted. */
[[nodiscard]] _asf_content_descriptor_t* asf_init_content_descriptor();

/** Frees name, value and the record. Null is allowed. */
void asf_free_content_descriptor(_asf_content_descriptor_t* descriptor);

/** Of a descriptor without name and value. */
inline constexpr std::uint32_t asf_content_descriptor_fixed_size = 6;

/** Bytes of DESCRIPTOR in the file: name length + value length + 6. */
[[nodiscard]] std::uint32_t asf_content_descriptor_bytes(const _asf_content_descriptor_t* descriptor);

/** Reads the descriptor at the current position into DESCRIPTOR (whose old contents are not freed), or into
   a new record when DESCRIPTOR is null. What lies behind the end of the file is zero. Returns the record,
   or null when memory is exhausted or the disk fails; DESCRIPTOR then owns nothing. Nothing in the program
   calls it. */
_asf_content_descriptor_t* asf_read_content_descriptor(FIOFUNCSTRUCT* file,
                                                       _asf_content_descriptor_t* descriptor);

/** The lines that reading a descriptor at POSITION traces: its name and its value. */
void asf_log_content_descriptor(std::int64_t position, const _asf_content_descriptor_t& descriptor);
/** The line that writing one traces: its name, LENGTH bytes. */
void asf_log_content_descriptor_name(std::int64_t position, const void* name, std::uint16_t length);

/** Writes DESCRIPTOR. Returns 1; a failed write shows in the file's position only. Nothing in the program
   calls it. */
int asf_store_content_descriptor(FIOFUNCSTRUCT* file, const _asf_content_descriptor_t* descriptor);

} // namespace velmora
