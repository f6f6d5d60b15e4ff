#include "Misc/App.h"

double FApp::CurrentTime = 0.0;
double FApp::LastTime = 0.0;
double FApp::DeltaTime = 1.0 / 30.0;
bool FApp::bUnattended = false;

namespace
{
FString& GetMutableProjectName()
{
	static FString Name;
	return Name;
}
}

const TCHAR* FApp::GetProjectName()
{
	return *GetMutableProjectName();
}

void FApp::SetProjectName(const TCHAR* InProjectName)
{
	GetMutableProjectName() = InProjectName;
}

bool FApp::HasProjectName()
{
	return !GetMutableProjectName().IsEmpty();
}

FGuid FApp::GetInstanceId()
{
	static const FGuid InstanceId = FGuid::NewGuid();
	return InstanceId;
}
