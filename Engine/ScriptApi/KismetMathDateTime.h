// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetMathDateTime.generated.h"

// Continues
UCLASS()
class ENGINE_API UKismetMathLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** A point in time of its parts */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (Keywords = "construct build", NativeMakeFunc))
	static FDateTime MakeDateTime(
		int32 Year, int32 Month, int32 Day, int32 Hour = 0, int32 Minute = 0, int32 Second = 0, int32 Millisecond = 0);

	/** The parts of a point in time */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (NativeBreakFunc))
	static void BreakDateTime(
		FDateTime InDateTime, int32& Year, int32& Month, int32& Day, int32& Hour, int32& Minute, int32& Second, int32& Millisecond);

	/** Addition (A + B) */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime",
		meta = (DisplayName = "DateTime + Timespan", CompactNodeTitle = "+", Keywords = "+ add plus"))
	static FDateTime Add_DateTimeTimespan(FDateTime A, FTimespan B);

	/** Subtraction (A - B) */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime",
		meta = (DisplayName = "DateTime - Timespan", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static FDateTime Subtract_DateTimeTimespan(FDateTime A, FTimespan B);

	/** Subtraction (A - B) */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime",
		meta = (DisplayName = "DateTime - DateTime", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static FTimespan Subtract_DateTimeDateTime(FDateTime A, FDateTime B);

	/** Returns true if A is equal to B (A == B) */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime",
		meta = (DisplayName = "Equal (DateTime)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_DateTimeDateTime(FDateTime A, FDateTime B);

	/** Returns true if A is not equal to B (A != B) */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime",
		meta = (DisplayName = "Not Equal (DateTime)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_DateTimeDateTime(FDateTime A, FDateTime B);

	/** Returns true if A is greater than B (A > B) */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime",
		meta = (DisplayName = "DateTime > DateTime", CompactNodeTitle = ">", Keywords = "> greater"))
	static bool Greater_DateTimeDateTime(FDateTime A, FDateTime B);

	/** Returns true if A is greater than or equal to B (A >= B) */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime",
		meta = (DisplayName = "DateTime >= DateTime", CompactNodeTitle = ">=", Keywords = ">= greater"))
	static bool GreaterEqual_DateTimeDateTime(FDateTime A, FDateTime B);

	/** Returns true if A is less than B (A < B) */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime",
		meta = (DisplayName = "DateTime < DateTime", CompactNodeTitle = "<", Keywords = "< less"))
	static bool Less_DateTimeDateTime(FDateTime A, FDateTime B);

	/** Returns true if A is less than or equal to B (A <= B) */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime",
		meta = (DisplayName = "DateTime <= DateTime", CompactNodeTitle = "<=", Keywords = "<= less"))
	static bool LessEqual_DateTimeDateTime(FDateTime A, FDateTime B);

	/** Local time of this machine */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime")
	static FDateTime Now();

	/** Coordinated universal time of this machine */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime")
	static FDateTime UtcNow();

	/** Local date of this machine, at midnight */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime")
	static FDateTime Today();

	/** The Day part of a point in time */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Get Day"))
	static int32 GetDay(FDateTime A);

	/** The Hour part of a point in time */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Get Hour"))
	static int32 GetHour(FDateTime A);

	/** The Hour12 part of a point in time */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Get Hour12"))
	static int32 GetHour12(FDateTime A);

	/** The Millisecond part of a point in time */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Get Millisecond"))
	static int32 GetMillisecond(FDateTime A);

	/** The Minute part of a point in time */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Get Minute"))
	static int32 GetMinute(FDateTime A);

	/** The Month part of a point in time */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Get Month"))
	static int32 GetMonth(FDateTime A);

	/** The Second part of a point in time */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Get Second"))
	static int32 GetSecond(FDateTime A);

	/** The Year part of a point in time */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Get Year"))
	static int32 GetYear(FDateTime A);

	/** The DayOfYear part of a point in time */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Get Day Of Year"))
	static int32 GetDayOfYear(FDateTime A);

	/** A length of time of its parts */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (Keywords = "construct build", NativeMakeFunc))
	static FTimespan MakeTimespan(int32 Days, int32 Hours, int32 Minutes, int32 Seconds, int32 Milliseconds);

	/** The parts of a length of time */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (NativeBreakFunc))
	static void BreakTimespan(FTimespan InTimespan, int32& Days, int32& Hours, int32& Minutes, int32& Seconds, int32& Milliseconds);

	/** Addition (A + B) */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan",
		meta = (DisplayName = "Timespan + Timespan", CompactNodeTitle = "+", Keywords = "+ add plus"))
	static FTimespan Add_TimespanTimespan(FTimespan A, FTimespan B);

	/** Subtraction (A - B) */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan",
		meta = (DisplayName = "Timespan - Timespan", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static FTimespan Subtract_TimespanTimespan(FTimespan A, FTimespan B);

	/** A length of time times a number */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan",
		meta = (DisplayName = "Timespan * Float", CompactNodeTitle = "*", Keywords = "* multiply"))
	static FTimespan Multiply_TimespanFloat(FTimespan A, float Scalar);

	/** Returns true if A is equal to B (A == B) */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan",
		meta = (DisplayName = "Equal (Timespan)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_TimespanTimespan(FTimespan A, FTimespan B);

	/** Returns true if A is not equal to B (A != B) */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan",
		meta = (DisplayName = "Not Equal (Timespan)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_TimespanTimespan(FTimespan A, FTimespan B);

	/** Returns true if A is greater than B (A > B) */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan",
		meta = (DisplayName = "Timespan > Timespan", CompactNodeTitle = ">", Keywords = "> greater"))
	static bool Greater_TimespanTimespan(FTimespan A, FTimespan B);

	/** Returns true if A is greater than or equal to B (A >= B) */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan",
		meta = (DisplayName = "Timespan >= Timespan", CompactNodeTitle = ">=", Keywords = ">= greater"))
	static bool GreaterEqual_TimespanTimespan(FTimespan A, FTimespan B);

	/** Returns true if A is less than B (A < B) */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan",
		meta = (DisplayName = "Timespan < Timespan", CompactNodeTitle = "<", Keywords = "< less"))
	static bool Less_TimespanTimespan(FTimespan A, FTimespan B);

	/** Returns true if A is less than or equal to B (A <= B) */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan",
		meta = (DisplayName = "Timespan <= Timespan", CompactNodeTitle = "<=", Keywords = "<= less"))
	static bool LessEqual_TimespanTimespan(FTimespan A, FTimespan B);

	/** The days part of a length of time */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Get Days"))
	static int32 GetDays(FTimespan A);

	/** The hours part of a length of time */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Get Hours"))
	static int32 GetHours(FTimespan A);

	/** The milliseconds part of a length of time */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Get Milliseconds"))
	static int32 GetMilliseconds(FTimespan A);

	/** The minutes part of a length of time */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Get Minutes"))
	static int32 GetMinutes(FTimespan A);

	/** The seconds part of a length of time */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Get Seconds"))
	static int32 GetSeconds(FTimespan A);

	/** A length of time in days */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Get Total Days"))
	static double GetTotalDays(FTimespan A);

	/** A length of time in hours */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Get Total Hours"))
	static double GetTotalHours(FTimespan A);

	/** A length of time in milliseconds */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Get Total Milliseconds"))
	static double GetTotalMilliseconds(FTimespan A);

	/** A length of time in minutes */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Get Total Minutes"))
	static double GetTotalMinutes(FTimespan A);

	/** A length of time in seconds */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Get Total Seconds"))
	static double GetTotalSeconds(FTimespan A);

	/** A length of time of days */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "From Days"))
	static FTimespan FromDays(double Days);

	/** A length of time of hours */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "From Hours"))
	static FTimespan FromHours(double Hours);

	/** A length of time of milliseconds */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "From Milliseconds"))
	static FTimespan FromMilliseconds(double Milliseconds);

	/** A length of time of minutes */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "From Minutes"))
	static FTimespan FromMinutes(double Minutes);

	/** A length of time of seconds */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "From Seconds"))
	static FTimespan FromSeconds(double Seconds);

	/** Addition (A + B) */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime",
		meta = (DisplayName = "DateTime + DateTime", CompactNodeTitle = "+", Keywords = "+ add plus"))
	static FDateTime Add_DateTimeDateTime(FDateTime A, FDateTime B);

	/** The day at midnight. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Get Date"))
	static FDateTime GetDate(FDateTime A);

	/** Time since midnight. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Get Time Of Day"))
	static FTimespan GetTimeOfDay(FDateTime A);

	/** True before noon. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Is Morning"))
	static bool IsMorning(FDateTime A);

	/** True from noon on. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Is Afternoon"))
	static bool IsAfternoon(FDateTime A);

	/** Days of a month. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime")
	static int32 DaysInMonth(int32 Year, int32 Month);

	/** Days of a year. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime")
	static int32 DaysInYear(int32 Year);

	/** True if a year has 366 days. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime")
	static bool IsLeapYear(int32 Year);

	/** The last point in time. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime")
	static FDateTime DateTimeMaxValue();

	/** The first point in time. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime")
	static FDateTime DateTimeMinValue();

	/** Reads a point in time of ISO 8601. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Date Time From ISO String"))
	static bool DateTimeFromIsoString(FString IsoString, FDateTime& Result);

	/** Reads a point in time. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime")
	static bool DateTimeFromString(FString DateTimeString, FDateTime& Result);

	/** Seconds since the first of January 1970. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "To Unix Timestamp"))
	static int64 ToUnixTimestamp(const FDateTime& Time);

	/** Seconds since the first of January 1970, with fractions. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "To Unix Timestamp as Double"))
	static double ToUnixTimestampDouble(const FDateTime& Time);

	/** Point in time of seconds since the first of January 1970. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "From Unix Timestamp"))
	static FDateTime FromUnixTimestamp(const int64 UnixTime);

	/** A length of time of its parts. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan")
	static FTimespan MakeTimespan2(int32 Days, int32 Hours, int32 Minutes, int32 Seconds, int32 FractionNano);

	/** The parts of a length of time. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan")
	static void BreakTimespan2(FTimespan InTimespan, int32& Days, int32& Hours, int32& Minutes, int32& Seconds, int32& FractionNano);

	/** A length of time divided by a number. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan",
		meta = (DisplayName = "Timespan / float", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static FTimespan Divide_TimespanFloat(FTimespan A, float Scalar);

	/** A length of time without its sign. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Get Duration"))
	static FTimespan GetDuration(FTimespan A);

	/** Reads a length of time. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan")
	static bool TimespanFromString(FString TimespanString, FTimespan& Result);

	/** The longest time. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan")
	static FTimespan TimespanMaxValue();

	/** The shortest time, below zero. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan")
	static FTimespan TimespanMinValue();

	/** How often B fits into A. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan")
	static float TimespanRatio(FTimespan A, FTimespan B);

	/** No time. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan")
	static FTimespan TimespanZeroValue();
};
