#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace bexa::test {

// Whole files as bytes. What cannot be carried out throws, so that the test fails there and then.

void writeFile(const std::string& path, std::string_view content);
std::string contentOf(const std::string& path);
bool exists(const std::string& path);
// The names in a directory, sorted, without "." and "..".
std::vector<std::string> listOf(const std::string& directory);
// Sets the permission bits, as chmod does.
void setMode(const std::string& path, unsigned mode);
// The path of a file in tests/data.
std::string testData(std::string_view name);

} // namespace bexa::test
