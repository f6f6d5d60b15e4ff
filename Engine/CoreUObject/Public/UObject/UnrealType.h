#pragma once

#include "UObject/ContainerProperty.h"
#include "UObject/DelegateProperty.h"
#include "UObject/FieldIterator.h"
#include "UObject/NumericProperty.h"
#include "UObject/ObjectProperty.h"
#include "UObject/PropertyBase.h"
#include "UObject/PropertyChangedEvent.h"
#include "UObject/PropertyTag.h"
#include "UObject/ScriptContainerHelpers.h"
#include "UObject/StringProperty.h"
