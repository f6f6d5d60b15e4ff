#pragma once

#include "HeaderParser/Model.h"

#include <filesystem>
#include <string>
#include <vector>

class UClass;

/** A header of Engine/ScriptApi as the parser reads it. */
struct FScriptApiHeader
{
	std::filesystem::path Path;
	HeaderParser::FHeader Header;
	/** One line for each thing that the parser did not understand. */
	std::vector<std::string> Errors;
};

/** All headers of the folder; read once a process. */
const std::vector<FScriptApiHeader>& GetScriptApiHeaders();

/** "/Script/Engine.Actor" of AActor in a header of that package. */
std::string GetReflectedPath(const HeaderParser::FHeader& Header, const std::string& CppName);

/** Class of a declaration, or null. */
UClass* FindDeclaredClass(const HeaderParser::FHeader& Header, const std::string& CppName);
