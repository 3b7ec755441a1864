// A program that stands in for another: notes where it runs, under which name and with which
// arguments, in the file that LUMIKEY_RECORD names; then runs for as many milliseconds as the file
// of that name followed by "." and its own says.

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

int main(int argc, char *argv[])
{
    const char *const record = std::getenv("LUMIKEY_RECORD");
    if (record == nullptr) {
        return EXIT_FAILURE;
    }
    std::filesystem::path name = std::filesystem::path(argv[0]).filename();
    if (name.extension() == ".exe") {
        name = name.stem();
    }
    std::string line = std::filesystem::current_path().u8string() + '\t' + name.string();
    for (int i = 1; i < argc; ++i) {
        line += std::string("\t") + argv[i];
    }
    std::ofstream(record, std::ios::app | std::ios::binary) << line + '\n';

    int waitMs = 0;
    std::ifstream(record + ("." + name.string())) >> waitMs;
    std::this_thread::sleep_for(std::chrono::milliseconds(waitMs));
    return EXIT_SUCCESS;
}
