// Profile files of two sections with 32,000 keys each: ours beside other libraries, in milliseconds.
//
// "load" reads the file and then every key by its name. "rewrite" deletes both sections of a loaded file, writes every
// key anew and makes the bytes of the file. "one key" loads, changes one key and makes the bytes. Bringing them to disk
// is counted apart; QSettings alone cannot be kept from it, so its figures contain its own way of doing so. All figures
// but those of the disk are processor time.
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/profile_file.h"
#include "measure.h"

#ifdef TESSIK_WITH_GLIB
#include <glib.h>
#endif
#ifdef TESSIK_WITH_QT
#include <QSettings>
#include <QString>
#endif
#ifdef TESSIK_WITH_SIMPLEINI
#include <SimpleIni.h>
#endif

namespace {

constexpr int kRuns = 15;
constexpr int kKeys = 32000;
constexpr std::array<std::string_view, 2> kSections = {"Versalien", "Preise"};

struct Data {
  std::string path;
  std::vector<std::string> keys;
  std::array<std::vector<std::string>, 2> values;
};

Data makeData(const std::filesystem::path& directory) {
  Data data{(directory / "bench.pdb").string(), {}, {}};
  for (int i = 0; i < kKeys; ++i) {
    data.keys.push_back(std::to_string(i));
    data.values[0].push_back("Höhe " + std::to_string(i + 5) + " mm");
    data.values[1].push_back(std::to_string(i / 100) + "." + std::to_string(10 + i % 90));
  }
  return data;
}

void require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "wrong result: %s\n", what);
  std::exit(EXIT_FAILURE);
}

// Calls `visit(section, key, value)` for all of them.
template <typename Visit>
void eachKey(const Data& data, Visit&& visit) {
  for (std::size_t section = 0; section < kSections.size(); ++section) {
    for (std::size_t i = 0; i < data.keys.size(); ++i) {
      visit(kSections.at(section), data.keys[i], data.values.at(section)[i]);
    }
  }
}

constexpr auto kNothing = [] { return 0; };

template <typename Prepare, typename Action>
double medianTime(Prepare&& prepare, Action&& action) {
  return bench::medianMilliseconds<bench::ProcessorClock>(kRuns, prepare, action);
}

struct Figures {
  double load;
  double rewrite;
  double oneKey;
};

void setAll(base::ProfileFile& file, const Data& data) {
  for (const std::string_view section : kSections) file.deleteSection(section);
  eachKey(data, [&](std::string_view section, const std::string& key, const std::string& value) {
    file.setValue(section, key, value);
  });
}

Figures measureOurs(const Data& data) {
  const auto loaded = [&] { return base::ProfileFile::load(data.path); };
  Figures figures{};
  figures.load = medianTime(kNothing, [&](int) {
    const base::ProfileFile file = loaded();
    eachKey(data, [&](std::string_view section, const std::string& key, const std::string& value) {
      require(file.value(section, key, base::kListBuffer) == value, "ours, load");
    });
  });
  figures.rewrite = medianTime(loaded, [&](base::ProfileFile& file) {
    setAll(file, data);
    require(file.bytes().size() > kKeys, "ours, rewrite");
  });
  figures.oneKey = medianTime(kNothing, [&](int) {
    base::ProfileFile file = loaded();
    file.setValue(kSections[1], "16000", "1.23");
    require(file.bytes().size() > kKeys, "ours, one key");
  });
  return figures;
}

double measureOurSetSection(const Data& data) {
  std::array<std::vector<std::string>, 2> lines;
  for (std::size_t section = 0; section < kSections.size(); ++section) {
    for (std::size_t i = 0; i < data.keys.size(); ++i) {
      lines.at(section).push_back(data.keys[i] + "=" + data.values.at(section)[i]);
    }
  }
  const auto loaded = [&] { return base::ProfileFile::load(data.path); };
  return medianTime(loaded, [&](base::ProfileFile& file) {
    for (std::size_t section = 0; section < kSections.size(); ++section) {
      file.deleteSection(kSections.at(section));
      file.setSection(kSections.at(section), lines.at(section));
    }
    require(file.bytes().size() > kKeys, "ours, sections");
  });
}

#ifdef TESSIK_WITH_GLIB
class KeyFile {
 public:
  explicit KeyFile(const std::string& path) : file_(g_key_file_new()) {
    require(g_key_file_load_from_file(file_, path.c_str(), G_KEY_FILE_NONE, nullptr) != 0, "GKeyFile, load");
  }
  KeyFile(const KeyFile&) = delete;
  KeyFile& operator=(const KeyFile&) = delete;
  KeyFile(KeyFile&& other) noexcept : file_(g_key_file_ref(other.file_)) {}
  ~KeyFile() { g_key_file_unref(file_); }
  GKeyFile* get() { return file_; }
  void makeBytes() {
    gsize size = 0;
    gchar* const bytes = g_key_file_to_data(file_, &size, nullptr);
    require(size > kKeys, "GKeyFile, bytes");
    g_free(bytes);
  }

 private:
  GKeyFile* file_;
};

Figures measureGKeyFile(const Data& data) {
  Figures figures{};
  figures.load = medianTime(kNothing, [&](int) {
    KeyFile file(data.path);
    eachKey(data, [&](std::string_view section, const std::string& key, const std::string& value) {
      gchar* const read = g_key_file_get_string(file.get(), section.data(), key.c_str(), nullptr);
      require(read != nullptr && value == read, "GKeyFile, load");
      g_free(read);
    });
  });
  const auto loaded = [&] { return KeyFile(data.path); };
  figures.rewrite = medianTime(loaded, [&](KeyFile& file) {
    for (const std::string_view section : kSections) g_key_file_remove_group(file.get(), section.data(), nullptr);
    eachKey(data, [&](std::string_view section, const std::string& key, const std::string& value) {
      g_key_file_set_string(file.get(), section.data(), key.c_str(), value.c_str());
    });
    file.makeBytes();
  });
  figures.oneKey = medianTime(kNothing, [&](int) {
    KeyFile file(data.path);
    g_key_file_set_string(file.get(), kSections[1].data(), "16000", "1.23");
    file.makeBytes();
  });
  return figures;
}
#endif

#ifdef TESSIK_WITH_QT
QString joined(std::string_view section, const std::string& key) {
  return QString::fromUtf8(section.data()) + QLatin1Char('/') + QString::fromStdString(key);
}

Figures measureQSettings(const Data& data) {
  // Every settings object in the program shares what is loaded, so each run has a file of its own.
  std::vector<std::string> copies;
  const auto freshCopy = [&] {
    copies.push_back(data.path + std::to_string(copies.size()));
    std::filesystem::copy_file(data.path, copies.back());
    return QString::fromStdString(copies.back());
  };
  Figures figures{};
  figures.load = medianTime(freshCopy, [&](const QString& path) {
    const QSettings file(path, QSettings::IniFormat);
    eachKey(data, [&](std::string_view section, const std::string& key, const std::string& value) {
      require(file.value(joined(section, key)).toString().toStdString() == value, "QSettings, load");
    });
  });
  figures.rewrite = medianTime(freshCopy, [&](const QString& path) {
    QSettings file(path, QSettings::IniFormat);
    for (const std::string_view section : kSections) file.remove(QString::fromUtf8(section.data()));
    eachKey(data, [&](std::string_view section, const std::string& key, const std::string& value) {
      file.setValue(joined(section, key), QString::fromStdString(value));
    });
    file.sync();
  });
  figures.oneKey = medianTime(freshCopy, [&](const QString& path) {
    QSettings file(path, QSettings::IniFormat);
    file.setValue(joined(kSections[1], "16000"), QStringLiteral("1.23"));
    file.sync();
  });
  for (const std::string& copy : copies) std::filesystem::remove(copy);
  return figures;
}
#endif

#ifdef TESSIK_WITH_SIMPLEINI
Figures measureSimpleIni(const Data& data) {
  const auto load = [&](CSimpleIniA& file) {
    file.SetUnicode();
    require(file.LoadFile(data.path.c_str()) == SI_OK, "SimpleIni, load");
  };
  const auto loaded = [&] {
    auto file = std::make_unique<CSimpleIniA>();
    load(*file);
    return file;
  };
  const auto makeBytes = [](const CSimpleIniA& file) {
    std::string bytes;
    file.Save(bytes);
    require(bytes.size() > kKeys, "SimpleIni, bytes");
  };
  Figures figures{};
  figures.load = medianTime(kNothing, [&](int) {
    const auto file = loaded();
    eachKey(data, [&](std::string_view section, const std::string& key, const std::string& value) {
      require(value == file->GetValue(section.data(), key.c_str(), ""), "SimpleIni, load");
    });
  });
  figures.rewrite = medianTime(loaded, [&](std::unique_ptr<CSimpleIniA>& file) {
    for (const std::string_view section : kSections) file->Delete(section.data(), nullptr);
    eachKey(data, [&](std::string_view section, const std::string& key, const std::string& value) {
      file->SetValue(section.data(), key.c_str(), value.c_str());
    });
    makeBytes(*file);
  });
  figures.oneKey = medianTime(kNothing, [&](int) {
    const auto file = loaded();
    file->SetValue(kSections[1].data(), "16000", "1.23");
    makeBytes(*file);
  });
  return figures;
}
#endif

// A section with a million lines is read and every line's key looked up.
void measureMany(const char* name, const std::function<std::string(int)>& keyOf) {
  constexpr int kLines = 1'000'000;
  constexpr int kFewRuns = 5;
  std::string bytes = "[s]\n";
  std::vector<std::string> keys;
  for (int i = 0; i < kLines; ++i) bytes += keys.emplace_back(keyOf(i)) + "=10\n";
  const double time = bench::medianMilliseconds<bench::ProcessorClock>(kFewRuns, kNothing, [&](int) {
    const base::ProfileFile file = base::ProfileFile::parse(bytes);
    for (const std::string& key : keys) require(file.value("s", key, base::kSettingBuffer) == "10", name);
  });
  std::printf("%-28s %8.0f\n", name, time);
}

void measureManyKeys() {
  std::printf("\nOne section of 1,000,000 lines, every key looked up:\n");
  measureMany("equal numbers", [](int) { return std::string("0"); });
  measureMany("equal names", [](int) { return std::string("key 0000"); });
  measureMany("counted numbers", [](int i) { return std::to_string(i); });
  measureMany("counted names", [](int i) { return "key " + std::to_string(i); });
}

void printRow(bench::Table& table, const char* name, const Figures& figures) {
  table.row(name, {figures.load, figures.rewrite, figures.oneKey});
}

void measureDisk(const Data& data) {
  const std::string bytes = base::readFile(data.path).value_or(std::string());
  const double plain =
      bench::medianMilliseconds(kRuns, kNothing, [&](int) { std::ofstream(data.path, std::ios::binary) << bytes; });
  const double whole = bench::medianMilliseconds(kRuns, kNothing, [&](int) { base::replaceFile(data.path, bytes); });
  std::printf("Bringing %zu bytes to disk: %.2f plainly, %.2f as a flushed replacement.\n", bytes.size(), plain, whole);
}

}  // namespace

int main(int argumentCount, char** arguments) {
  const std::filesystem::path parent = argumentCount > 1 ? arguments[1] : std::filesystem::temp_directory_path();
  const std::filesystem::path directory = parent / "tessik_profile_file_bench";
  std::filesystem::create_directories(directory);
  const Data data = makeData(directory);
  base::ProfileFile file = base::ProfileFile::load(data.path);
  setAll(file, data);
  file.save(data.path);

  bench::Table table({"load", "rewrite", "one key"});
  printRow(table, "Tessik", measureOurs(data));
#ifdef TESSIK_WITH_GLIB
  printRow(table, "GKeyFile", measureGKeyFile(data));
#endif
#ifdef TESSIK_WITH_QT
  printRow(table, "QSettings (with its flush)", measureQSettings(data));
#endif
#ifdef TESSIK_WITH_SIMPLEINI
  printRow(table, "SimpleIni", measureSimpleIni(data));
#endif
  std::printf("\nTessik rewrites by whole sections in %.2f.\n", measureOurSetSection(data));
  measureDisk(data);
  measureManyKeys();
  std::filesystem::remove_all(directory);
}
