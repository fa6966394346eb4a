#pragma once

#include <cstddef>
#include <cstdint>

/// What conversions of videos may cost. A film may come from anywhere, and be made to cost as much as
/// possible.
namespace platform::conversion {

/// FFmpeg's programs that run at the same time; further ones wait.
inline constexpr std::size_t maxRunning = 4;
/// Programs that wait; further ones are not started at all.
inline constexpr std::size_t maxWaiting = 32;
/// Seconds of film in one part; the player asks for eight.
inline constexpr double maxPartSeconds = 30;
/// Seconds from the film's beginning.
inline constexpr double maxStartSeconds = 24.0 * 60 * 60;
/// Of one picture of the film; larger ones are not decoded.
inline constexpr int maxPixels = 4096 * 2304;
/// Width and height of the pictures made of them, which also depend on the shape that the film says its
/// pixels have.
inline constexpr int maxSide = 4096;
/// Threads for decoding, and as many for encoding: each has pictures of its own.
inline constexpr int threads = 2;
/// Bytes of address space of one program.
inline constexpr std::uint64_t maxMemory = std::uint64_t{2} << 30;
/// Seconds of processor time of one program.
inline constexpr std::uint64_t maxProcessorSeconds = 60;

}  // namespace platform::conversion
