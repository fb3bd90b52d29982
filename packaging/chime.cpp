// Writes the chime of the appointments: two tones, the second a third lower, that die away.
//
// Mono, 16 bit, 22,050 samples a second, 1.4 seconds.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <numbers>
#include <string>

namespace {

constexpr std::uint32_t kRate = 22050;
constexpr std::uint32_t kSamples = kRate * 14 / 10;

// One tone with two overtones; `seconds` since it was struck.
double tone(double frequency, double seconds) {
  if (seconds < 0) return 0;
  const double phase = 2 * std::numbers::pi * frequency * seconds;
  const double attack = std::min(seconds / 0.005, 1.0);  // or it would click
  return attack * std::exp(-4 * seconds) * (std::sin(phase) + 0.3 * std::sin(2 * phase) + 0.1 * std::sin(3 * phase));
}

std::int16_t sampleAt(std::uint32_t index) {
  constexpr double kLoudness = 11000;
  constexpr double kUpper = 659.26;  // E5
  constexpr double kLower = 523.25;  // C5
  constexpr double kSecondAt = 0.35;
  const double seconds = static_cast<double>(index) / kRate;
  return static_cast<std::int16_t>(kLoudness * (tone(kUpper, seconds) + tone(kLower, seconds - kSecondAt)));
}

void append(std::string& bytes, std::uint32_t number, int size) {
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFF);
}

std::string waveFile() {
  constexpr std::uint32_t kDataSize = kSamples * 2;
  constexpr std::uint32_t kHeaderSize = 36;
  std::string bytes = "RIFF";
  append(bytes, kHeaderSize + kDataSize, 4);
  bytes += "WAVEfmt ";
  append(bytes, 16, 4);
  append(bytes, 1, 2);  // plain samples
  append(bytes, 1, 2);  // of one channel
  append(bytes, kRate, 4);
  append(bytes, kRate * 2, 4);
  append(bytes, 2, 2);
  append(bytes, 16, 2);
  bytes += "data";
  append(bytes, kDataSize, 4);
  for (std::uint32_t i = 0; i < kSamples; ++i) append(bytes, static_cast<std::uint16_t>(sampleAt(i)), 2);
  return bytes;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return EXIT_FAILURE;
  const std::filesystem::path target(argv[1]);
  std::filesystem::create_directories(target.parent_path());
  std::ofstream file(target, std::ios::binary);
  return file << waveFile() << std::flush ? EXIT_SUCCESS : EXIT_FAILURE;
}
