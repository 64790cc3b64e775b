#pragma once

#include <string>

namespace parlate::testing_support {

/// The bytes of a wave file of silence: one channel of 8 bits at 8,000 Hz.
inline std::string WaveFile(unsigned milliseconds) {
  const auto number = [](unsigned value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i)
      text += static_cast<char>((value >> (8U * static_cast<unsigned>(i))) & 0xFFU);
    return text;
  };
  constexpr unsigned kRate = 8000;
  const unsigned samples = kRate * milliseconds / 1000;
  const std::string format = number(1, 2) + number(1, 2) + number(kRate, 4) + number(kRate, 4) +
                             number(1, 2) + number(8, 2);
  return "RIFF" + number(36 + samples, 4) + "WAVEfmt " + number(16, 4) + format + "data" +
         number(samples, 4) + std::string(samples, '\x80');
}

}  // namespace parlate::testing_support
