#pragma once

#include "HeaderParser/TypeIndex.h"

namespace HeaderTool
{
/** One header of the module that is emitted. */
struct FReflectedHeader
{
	/** "Actor" of "GameFramework/Actor.h"; emitted files are called by it. */
	std::string Stem;
	/** "Public/GameFramework/Actor.h". */
	std::string ModuleRelativePath;
	/** "GameFramework/Actor.h", by which the header is included. */
	std::string IncludePath;
	/** "FID_Engine_Public_GameFramework_Actor_h". */
	std::string FileId;
	/** "/Script/Engine". */
	std::string Package;
	HeaderParser::FHeader Model;
};

/** Declarations that the compiler would accept but reflection cannot do without or with; empty when there are none. */
[[nodiscard]] std::vector<HeaderParser::FDiagnostic> Validate(const FReflectedHeader& Header);

/** Text of X.generated.h. */
[[nodiscard]] std::string EmitGeneratedHeader(const FReflectedHeader& Header, const HeaderParser::FTypeIndex& Types);

/** Text of X.gen.cpp. */
[[nodiscard]] std::string EmitGeneratedSource(const FReflectedHeader& Header, const HeaderParser::FTypeIndex& Types);
}
