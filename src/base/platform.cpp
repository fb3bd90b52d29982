// What a platform without a desktop answers.
#include "base/platform.h"

#include "base/failure.h"

namespace base {
namespace {

[[noreturn]] void notAvailable() {
  throw Failure(ErrorNumber::deviceUnavailable, "Das ist hier nicht verfügbar: Dafür braucht Tessik einen Bildschirm.");
}

}  // namespace

MessageAnswer Platform::messageBox(const Message& /*message*/) { notAvailable(); }
std::optional<std::string> Platform::inputBox(const InputQuestion& /*question*/) { notAvailable(); }
std::string Platform::askOpenFile(const FileQuestion& /*question*/) { notAvailable(); }
std::string Platform::askSaveFile(const FileQuestion& /*question*/) { notAvailable(); }
CharFormat Platform::askFont(const CharFormat& /*present*/) { notAvailable(); }
std::optional<Rgb> Platform::askColour(std::optional<Rgb> /*present*/) { notAvailable(); }
void Platform::showModal(Window& /*window*/) { notAvailable(); }
void Platform::show(Window& /*window*/) { notAvailable(); }
void Platform::close(Window& /*window*/) { notAvailable(); }
void Platform::hide(Window& /*window*/) { notAvailable(); }
void Platform::refresh() { notAvailable(); }
bool Platform::escapePressed() { notAvailable(); }
void Platform::setHourglass(Hourglass /*hourglass*/) { notAvailable(); }
bool Platform::runAside(const std::function<void()>& /*work*/) { notAvailable(); }
std::optional<bool> Platform::asideSucceeded() { notAvailable(); }
void Platform::awaitAside() { notAvailable(); }
void Platform::beep() { notAvailable(); }
int Platform::soundDevices() const { return 0; }
bool Platform::openSound(const std::string& /*path*/) { return false; }
void Platform::playSound() { notAvailable(); }
void Platform::stopSound() { notAvailable(); }
void Platform::closeSound() { notAvailable(); }
std::string Platform::ownFile(std::string_view /*name*/) const { return {}; }
void Platform::notify(const Notification& /*notification*/) {}
DateTime Platform::now() const { notAvailable(); }
int Platform::screenWidth() const { notAvailable(); }
SystemInformation Platform::systemInformation() const { notAvailable(); }
std::string Platform::systemRoot() const { notAvailable(); }
std::vector<Volume> Platform::volumes() const { notAvailable(); }
std::string Platform::clipboardText() const { notAvailable(); }
std::optional<Document> Platform::clipboardDocument() const { notAvailable(); }
void Platform::setClipboardText(std::string_view /*text*/) { notAvailable(); }
void Platform::setClipboard(const Document& /*document*/) { notAvailable(); }
bool Platform::hasPrinter() { notAvailable(); }
void Platform::print(const PrintJob& /*job*/) { notAvailable(); }
void Platform::printPreview(const PrintJob& /*job*/) { notAvailable(); }
void Platform::printerSetUp() { notAvailable(); }
std::string Platform::pdf(const PrintJob& /*job*/) { notAvailable(); }
void Platform::mail(const std::string& /*file*/, const std::string& /*subject*/) { notAvailable(); }
void Platform::openFile(const std::string& /*file*/) { notAvailable(); }
std::optional<std::string> Platform::userSetting(std::string_view /*key*/) const { notAvailable(); }
void Platform::saveUserSettings(const std::vector<UserSetting>& /*settings*/) { notAvailable(); }
NumberFormat Platform::numberFormat() const { notAvailable(); }
DateFormat Platform::dateFormat() const { notAvailable(); }
std::string Platform::regionalDate(const DateTime& /*moment*/) const { notAvailable(); }
std::string Platform::regionalTime(const DateTime& /*moment*/) const { notAvailable(); }
std::string Platform::composed(std::string_view /*text*/) const { notAvailable(); }
std::vector<std::string> Platform::fontFamilies() const { notAvailable(); }
Dictionary* Platform::dictionary() { return nullptr; }

}  // namespace base
