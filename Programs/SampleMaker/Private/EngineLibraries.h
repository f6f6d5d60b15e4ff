#pragma once

#include "CoreMinimal.h"

/** Native classes whose functions the sample calls. */
namespace EngineLibraries
{
inline const TCHAR* const Actor = TEXT("/Script/Engine.Actor");
inline const TCHAR* const Array = TEXT("/Script/Engine.KismetArrayLibrary");
inline const TCHAR* const Math = TEXT("/Script/Engine.KismetMathLibrary");
inline const TCHAR* const String = TEXT("/Script/Engine.KismetStringLibrary");
inline const TCHAR* const System = TEXT("/Script/Engine.KismetSystemLibrary");
}
