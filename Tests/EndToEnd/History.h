#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>
#include <vector>

/** The stored conversations of a project, read from their files; other files of the history are passed over. */
std::vector<nlohmann::json> ReadHistory(const std::filesystem::path& Project);
