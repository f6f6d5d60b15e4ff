#pragma once

#include "CoreMinimal.h"
#include "Editor/EditorEngine.h"
