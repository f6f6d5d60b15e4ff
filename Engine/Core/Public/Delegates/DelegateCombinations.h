#pragma once

// The DECLARE_ families, included by Delegate.h. Each declares a type; the number in a name is that of the call's parameters.

#define FUNC_DECLARE_DELEGATE(DelegateName, ReturnType, ...) typedef TDelegate<ReturnType(__VA_ARGS__)> DelegateName;
#define FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, ...) typedef TMulticastDelegate<void(__VA_ARGS__)> DelegateName;
#define FUNC_DECLARE_TS_MULTICAST_DELEGATE(DelegateName, ...) \
	typedef TMulticastDelegate<void(__VA_ARGS__), FDefaultTSDelegateUserPolicy> DelegateName;
#define FUNC_DECLARE_EVENT(OwningType, EventName, ...) \
	class EventName : public TMulticastDelegate<void(__VA_ARGS__)> \
	{ \
		friend class OwningType; \
	};

#define DECLARE_DELEGATE(DelegateName) FUNC_DECLARE_DELEGATE(DelegateName, void)
#define DECLARE_DELEGATE_OneParam(DelegateName, ...) FUNC_DECLARE_DELEGATE(DelegateName, void, __VA_ARGS__)
#define DECLARE_DELEGATE_TwoParams(DelegateName, ...) FUNC_DECLARE_DELEGATE(DelegateName, void, __VA_ARGS__)
#define DECLARE_DELEGATE_ThreeParams(DelegateName, ...) FUNC_DECLARE_DELEGATE(DelegateName, void, __VA_ARGS__)
#define DECLARE_DELEGATE_FourParams(DelegateName, ...) FUNC_DECLARE_DELEGATE(DelegateName, void, __VA_ARGS__)
#define DECLARE_DELEGATE_FiveParams(DelegateName, ...) FUNC_DECLARE_DELEGATE(DelegateName, void, __VA_ARGS__)
#define DECLARE_DELEGATE_SixParams(DelegateName, ...) FUNC_DECLARE_DELEGATE(DelegateName, void, __VA_ARGS__)
#define DECLARE_DELEGATE_SevenParams(DelegateName, ...) FUNC_DECLARE_DELEGATE(DelegateName, void, __VA_ARGS__)
#define DECLARE_DELEGATE_EightParams(DelegateName, ...) FUNC_DECLARE_DELEGATE(DelegateName, void, __VA_ARGS__)
#define DECLARE_DELEGATE_NineParams(DelegateName, ...) FUNC_DECLARE_DELEGATE(DelegateName, void, __VA_ARGS__)

#define DECLARE_DELEGATE_RetVal(ReturnType, DelegateName) FUNC_DECLARE_DELEGATE(DelegateName, ReturnType)
#define DECLARE_DELEGATE_RetVal_OneParam(ReturnType, DelegateName, ...) FUNC_DECLARE_DELEGATE(DelegateName, ReturnType, __VA_ARGS__)
#define DECLARE_DELEGATE_RetVal_TwoParams(ReturnType, DelegateName, ...) FUNC_DECLARE_DELEGATE(DelegateName, ReturnType, __VA_ARGS__)
#define DECLARE_DELEGATE_RetVal_ThreeParams(ReturnType, DelegateName, ...) FUNC_DECLARE_DELEGATE(DelegateName, ReturnType, __VA_ARGS__)
#define DECLARE_DELEGATE_RetVal_FourParams(ReturnType, DelegateName, ...) FUNC_DECLARE_DELEGATE(DelegateName, ReturnType, __VA_ARGS__)
#define DECLARE_DELEGATE_RetVal_FiveParams(ReturnType, DelegateName, ...) FUNC_DECLARE_DELEGATE(DelegateName, ReturnType, __VA_ARGS__)
#define DECLARE_DELEGATE_RetVal_SixParams(ReturnType, DelegateName, ...) FUNC_DECLARE_DELEGATE(DelegateName, ReturnType, __VA_ARGS__)
#define DECLARE_DELEGATE_RetVal_SevenParams(ReturnType, DelegateName, ...) FUNC_DECLARE_DELEGATE(DelegateName, ReturnType, __VA_ARGS__)
#define DECLARE_DELEGATE_RetVal_EightParams(ReturnType, DelegateName, ...) FUNC_DECLARE_DELEGATE(DelegateName, ReturnType, __VA_ARGS__)
#define DECLARE_DELEGATE_RetVal_NineParams(ReturnType, DelegateName, ...) FUNC_DECLARE_DELEGATE(DelegateName, ReturnType, __VA_ARGS__)

#define DECLARE_MULTICAST_DELEGATE(DelegateName) FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName)
#define DECLARE_MULTICAST_DELEGATE_OneParam(DelegateName, ...) FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, __VA_ARGS__)
#define DECLARE_MULTICAST_DELEGATE_TwoParams(DelegateName, ...) FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, __VA_ARGS__)
#define DECLARE_MULTICAST_DELEGATE_ThreeParams(DelegateName, ...) FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, __VA_ARGS__)
#define DECLARE_MULTICAST_DELEGATE_FourParams(DelegateName, ...) FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, __VA_ARGS__)
#define DECLARE_MULTICAST_DELEGATE_FiveParams(DelegateName, ...) FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, __VA_ARGS__)
#define DECLARE_MULTICAST_DELEGATE_SixParams(DelegateName, ...) FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, __VA_ARGS__)
#define DECLARE_MULTICAST_DELEGATE_SevenParams(DelegateName, ...) FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, __VA_ARGS__)
#define DECLARE_MULTICAST_DELEGATE_EightParams(DelegateName, ...) FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, __VA_ARGS__)
#define DECLARE_MULTICAST_DELEGATE_NineParams(DelegateName, ...) FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, __VA_ARGS__)

#define DECLARE_TS_MULTICAST_DELEGATE(DelegateName) FUNC_DECLARE_TS_MULTICAST_DELEGATE(DelegateName)
#define DECLARE_TS_MULTICAST_DELEGATE_OneParam(DelegateName, ...) FUNC_DECLARE_TS_MULTICAST_DELEGATE(DelegateName, __VA_ARGS__)
#define DECLARE_TS_MULTICAST_DELEGATE_TwoParams(DelegateName, ...) FUNC_DECLARE_TS_MULTICAST_DELEGATE(DelegateName, __VA_ARGS__)
#define DECLARE_TS_MULTICAST_DELEGATE_ThreeParams(DelegateName, ...) FUNC_DECLARE_TS_MULTICAST_DELEGATE(DelegateName, __VA_ARGS__)
#define DECLARE_TS_MULTICAST_DELEGATE_FourParams(DelegateName, ...) FUNC_DECLARE_TS_MULTICAST_DELEGATE(DelegateName, __VA_ARGS__)
#define DECLARE_TS_MULTICAST_DELEGATE_FiveParams(DelegateName, ...) FUNC_DECLARE_TS_MULTICAST_DELEGATE(DelegateName, __VA_ARGS__)
#define DECLARE_TS_MULTICAST_DELEGATE_SixParams(DelegateName, ...) FUNC_DECLARE_TS_MULTICAST_DELEGATE(DelegateName, __VA_ARGS__)
#define DECLARE_TS_MULTICAST_DELEGATE_SevenParams(DelegateName, ...) FUNC_DECLARE_TS_MULTICAST_DELEGATE(DelegateName, __VA_ARGS__)
#define DECLARE_TS_MULTICAST_DELEGATE_EightParams(DelegateName, ...) FUNC_DECLARE_TS_MULTICAST_DELEGATE(DelegateName, __VA_ARGS__)
#define DECLARE_TS_MULTICAST_DELEGATE_NineParams(DelegateName, ...) FUNC_DECLARE_TS_MULTICAST_DELEGATE(DelegateName, __VA_ARGS__)

#define DECLARE_EVENT(OwningType, EventName) FUNC_DECLARE_EVENT(OwningType, EventName)
#define DECLARE_EVENT_OneParam(OwningType, EventName, ...) FUNC_DECLARE_EVENT(OwningType, EventName, __VA_ARGS__)
#define DECLARE_EVENT_TwoParams(OwningType, EventName, ...) FUNC_DECLARE_EVENT(OwningType, EventName, __VA_ARGS__)
#define DECLARE_EVENT_ThreeParams(OwningType, EventName, ...) FUNC_DECLARE_EVENT(OwningType, EventName, __VA_ARGS__)
#define DECLARE_EVENT_FourParams(OwningType, EventName, ...) FUNC_DECLARE_EVENT(OwningType, EventName, __VA_ARGS__)
#define DECLARE_EVENT_FiveParams(OwningType, EventName, ...) FUNC_DECLARE_EVENT(OwningType, EventName, __VA_ARGS__)
#define DECLARE_EVENT_SixParams(OwningType, EventName, ...) FUNC_DECLARE_EVENT(OwningType, EventName, __VA_ARGS__)
#define DECLARE_EVENT_SevenParams(OwningType, EventName, ...) FUNC_DECLARE_EVENT(OwningType, EventName, __VA_ARGS__)
#define DECLARE_EVENT_EightParams(OwningType, EventName, ...) FUNC_DECLARE_EVENT(OwningType, EventName, __VA_ARGS__)
#define DECLARE_EVENT_NineParams(OwningType, EventName, ...) FUNC_DECLARE_EVENT(OwningType, EventName, __VA_ARGS__)

// Dynamic delegates name a reflected function of an object; UObject/ScriptDelegates.h has their bases. HeaderTool reads these
// declarations for the signature, so that parameters have names here.

#define FUNC_DECLARE_DYNAMIC_DELEGATE(DelegateName, ReturnType, ...) \
	class DelegateName : public TBaseDynamicDelegate<ReturnType __VA_OPT__(, ) __VA_ARGS__> \
	{ \
	public: \
		using TBaseDynamicDelegate<ReturnType __VA_OPT__(, ) __VA_ARGS__>::TBaseDynamicDelegate; \
	};
#define FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(DelegateName, ...) \
	class DelegateName : public TBaseDynamicMulticastDelegate<void __VA_OPT__(, ) __VA_ARGS__> \
	{ \
	};

#define DECLARE_DYNAMIC_DELEGATE(DelegateName) FUNC_DECLARE_DYNAMIC_DELEGATE(DelegateName, void)
#define DECLARE_DYNAMIC_DELEGATE_OneParam(DelegateName, Param1Type, Param1Name) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(DelegateName, void, Param1Type)
#define DECLARE_DYNAMIC_DELEGATE_TwoParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(DelegateName, void, Param1Type, Param2Type)
#define DECLARE_DYNAMIC_DELEGATE_ThreeParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type)
#define DECLARE_DYNAMIC_DELEGATE_FourParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, \
	Param3Type, Param3Name, Param4Type, Param4Name) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type)
#define DECLARE_DYNAMIC_DELEGATE_FiveParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, \
	Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)
#define DECLARE_DYNAMIC_DELEGATE_SixParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, \
	Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type)
#define DECLARE_DYNAMIC_DELEGATE_SevenParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, \
	Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, \
		Param7Type)
#define DECLARE_DYNAMIC_DELEGATE_EightParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, \
	Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, \
	Param8Type, Param8Name) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, \
		Param7Type, Param8Type)
#define DECLARE_DYNAMIC_DELEGATE_NineParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, \
	Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, \
	Param8Type, Param8Name, Param9Type, Param9Name) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, \
		Param7Type, Param8Type, Param9Type)

#define DECLARE_DYNAMIC_DELEGATE_RetVal(ReturnType, DelegateName) FUNC_DECLARE_DYNAMIC_DELEGATE(DelegateName, ReturnType)
#define DECLARE_DYNAMIC_DELEGATE_RetVal_OneParam(ReturnType, DelegateName, Param1Type, Param1Name) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(DelegateName, ReturnType, Param1Type)
#define DECLARE_DYNAMIC_DELEGATE_RetVal_TwoParams(ReturnType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(DelegateName, ReturnType, Param1Type, Param2Type)
#define DECLARE_DYNAMIC_DELEGATE_RetVal_ThreeParams(ReturnType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, \
	Param3Type, Param3Name) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(DelegateName, ReturnType, Param1Type, Param2Type, Param3Type)
#define DECLARE_DYNAMIC_DELEGATE_RetVal_FourParams(ReturnType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, \
	Param3Type, Param3Name, Param4Type, Param4Name) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(DelegateName, ReturnType, Param1Type, Param2Type, Param3Type, Param4Type)
#define DECLARE_DYNAMIC_DELEGATE_RetVal_FiveParams(ReturnType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, \
	Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(DelegateName, ReturnType, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)
#define DECLARE_DYNAMIC_DELEGATE_RetVal_SixParams(ReturnType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, \
	Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(DelegateName, ReturnType, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type)
#define DECLARE_DYNAMIC_DELEGATE_RetVal_SevenParams(ReturnType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, \
	Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(DelegateName, ReturnType, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, \
		Param6Type, Param7Type)
#define DECLARE_DYNAMIC_DELEGATE_RetVal_EightParams(ReturnType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, \
	Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, \
	Param8Type, Param8Name) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(DelegateName, ReturnType, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, \
		Param6Type, Param7Type, Param8Type)
#define DECLARE_DYNAMIC_DELEGATE_RetVal_NineParams(ReturnType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, \
	Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, \
	Param8Type, Param8Name, Param9Type, Param9Name) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(DelegateName, ReturnType, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, \
		Param6Type, Param7Type, Param8Type, Param9Type)

#define DECLARE_DYNAMIC_MULTICAST_DELEGATE(DelegateName) FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(DelegateName)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(DelegateName, Param1Type, Param1Name) \
	FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(DelegateName, Param1Type)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name) \
	FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(DelegateName, Param1Type, Param2Type)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_ThreeParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, \
	Param3Type, Param3Name) \
	FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(DelegateName, Param1Type, Param2Type, Param3Type)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_FourParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, \
	Param3Type, Param3Name, Param4Type, Param4Name) \
	FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(DelegateName, Param1Type, Param2Type, Param3Type, Param4Type)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_FiveParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, \
	Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name) \
	FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(DelegateName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_SixParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, \
	Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name) \
	FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(DelegateName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_SevenParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, \
	Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name) \
	FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(DelegateName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, \
		Param7Type)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_EightParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, \
	Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, \
	Param8Type, Param8Name) \
	FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(DelegateName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, \
		Param7Type, Param8Type)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_NineParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, \
	Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, \
	Param8Type, Param8Name, Param9Type, Param9Name) \
	FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(DelegateName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, \
		Param7Type, Param8Type, Param9Type)
