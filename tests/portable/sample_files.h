#pragma once

#include <string>

/** Small files of the kinds that tags are saved in, whose media is a pattern. */
namespace velmora::test {

/** Frames; TAGGED: behind an ID3v2.3 tag with a title and a frame that nobody knows. */
[[nodiscard]] std::string mp3_sample(bool tagged);
/** An ID3v2.4 tag as it stands behind media. */
[[nodiscard]] std::string appended_tag_sample();
/** Without a comment, with padding. */
[[nodiscard]] std::string flac_sample();
/** With a title. */
[[nodiscard]] std::string opus_sample();
/** With a title, an item that nobody knows, and one offset, which counts up to media in front of `moov` or
   behind it. */
[[nodiscard]] std::string mp4_sample(bool media_behind);
/** With an INFO list. */
[[nodiscard]] std::string wav_sample();
/** Without a tag. */
[[nodiscard]] std::string aiff_sample();
/** With a title, an artist and padding. */
[[nodiscard]] std::string asf_sample();
/** With a title. */
[[nodiscard]] std::string avi_sample();

} // namespace velmora::test
