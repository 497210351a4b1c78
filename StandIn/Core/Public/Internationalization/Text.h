// FText: display text, with its localization identity (namespace and key).
#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "Misc/Optional.h"
#include "Templates/SharedPointer.h"
#include "UObject/NameTypes.h"

#include <type_traits>

class FText;
class FTextInspector;
class FTextFormat;
struct FFormatArgumentValue;

namespace ETextComparisonLevel
{
	enum Type
	{
		Default,
		Primary,
		Secondary,
		Tertiary,
		Quaternary,
		Quinary
	};
}

enum class ETextIdenticalModeFlags : uint8
{
	None = 0,
	DeepCompare = 1 << 0,
	LexicalCompareInvariants = 1 << 1,
};
ENUM_CLASS_FLAGS(ETextIdenticalModeFlags)

namespace ETextFlag
{
	enum Type : uint32
	{
		Transient = (1 << 0),
		CultureInvariant = (1 << 1),
		ConvertedProperty = (1 << 2),
		Immutable = (1 << 3),
		InitializedFromString = (1 << 4),
	};
}

enum ERoundingMode : int32
{
	HalfToEven,
	HalfFromZero,
	HalfToZero,
	FromZero,
	ToZero,
	ToNegativeInfinity,
	ToPositiveInfinity,
};

struct FNumberFormattingOptions
{
	bool AlwaysSign = false;
	bool UseGrouping = true;
	ERoundingMode RoundingMode = ERoundingMode::HalfToEven;
	int32 MinimumIntegralDigits = 1;
	int32 MaximumIntegralDigits = 324;
	int32 MinimumFractionalDigits = 0;
	int32 MaximumFractionalDigits = 3;

	FNumberFormattingOptions& SetAlwaysSign(bool InValue) { AlwaysSign = InValue; return *this; }
	FNumberFormattingOptions& SetUseGrouping(bool InValue) { UseGrouping = InValue; return *this; }
	FNumberFormattingOptions& SetRoundingMode(ERoundingMode InValue) { RoundingMode = InValue; return *this; }
	FNumberFormattingOptions& SetMinimumIntegralDigits(int32 InValue) { MinimumIntegralDigits = InValue; return *this; }
	FNumberFormattingOptions& SetMaximumIntegralDigits(int32 InValue) { MaximumIntegralDigits = InValue; return *this; }
	FNumberFormattingOptions& SetMinimumFractionalDigits(int32 InValue) { MinimumFractionalDigits = InValue; return *this; }
	FNumberFormattingOptions& SetMaximumFractionalDigits(int32 InValue) { MaximumFractionalDigits = InValue; return *this; }

	CORE_API static const FNumberFormattingOptions& DefaultWithGrouping();
	CORE_API static const FNumberFormattingOptions& DefaultNoGrouping();
};

enum class EFormatArgumentType : uint8
{
	Int,
	UInt,
	Float,
	Double,
	Text,
	Gender
};

enum class ETextGender : uint8
{
	Masculine,
	Feminine,
	Neuter
};

/** Immutable shared state of a text. */
struct FTextData
{
	FString DisplayString;
	TOptional<FString> Namespace;
	TOptional<FString> Key;
	uint32 Flags = 0;
};

class FText
{
public:
	CORE_API FText();
	FText(const FText&) = default;
	FText(FText&&) = default;
	FText& operator=(const FText&) = default;
	FText& operator=(FText&&) = default;

	CORE_API static const FText& GetEmpty();

	CORE_API static FText FromString(const FString& String);
	CORE_API static FText FromString(FString&& String);
	CORE_API static FText FromStringView(FStringView InString);
	CORE_API static FText FromName(const FName& Val);
	CORE_API static FText AsCultureInvariant(const FString& String);
	CORE_API static FText AsCultureInvariant(FString&& String);
	CORE_API static FText AsCultureInvariant(FText Text);
	/** A localizable text with its namespace and key (what LOCTEXT / NSLOCTEXT create). */
	CORE_API static FText AsLocalizable_Advanced(const TCHAR* Namespace, const TCHAR* Key, const TCHAR* String);

	/** Numbers as the invariant ("en") culture formats them: grouping ',' and at most 3 fractional digits by default. */
	CORE_API static FText AsNumber(double Val, const FNumberFormattingOptions* const Options = nullptr);
	CORE_API static FText AsNumber(float Val, const FNumberFormattingOptions* const Options = nullptr);
	CORE_API static FText AsNumber(int8 Val, const FNumberFormattingOptions* const Options = nullptr);
	CORE_API static FText AsNumber(int16 Val, const FNumberFormattingOptions* const Options = nullptr);
	CORE_API static FText AsNumber(int32 Val, const FNumberFormattingOptions* const Options = nullptr);
	CORE_API static FText AsNumber(int64 Val, const FNumberFormattingOptions* const Options = nullptr);
	CORE_API static FText AsNumber(uint8 Val, const FNumberFormattingOptions* const Options = nullptr);
	CORE_API static FText AsNumber(uint16 Val, const FNumberFormattingOptions* const Options = nullptr);
	CORE_API static FText AsNumber(uint32 Val, const FNumberFormattingOptions* const Options = nullptr);
	CORE_API static FText AsNumber(uint64 Val, const FNumberFormattingOptions* const Options = nullptr);
	CORE_API static FText AsPercent(double Val, const FNumberFormattingOptions* const Options = nullptr);

	CORE_API const FString& ToString() const;
	FString BuildSourceString() const { return ToString(); }

	CORE_API bool IsEmpty() const;
	CORE_API bool IsEmptyOrWhitespace() const;
	CORE_API bool IsTransient() const;
	CORE_API bool IsCultureInvariant() const;
	CORE_API bool IsInitializedFromString() const;
	bool IsFromStringTable() const { return false; }
	bool ShouldGatherForLocalization() const { return !IsCultureInvariant() && !IsInitializedFromString() && !IsEmpty(); }

	CORE_API bool EqualTo(const FText& Other, const ETextComparisonLevel::Type ComparisonLevel = ETextComparisonLevel::Default) const;
	CORE_API bool EqualToCaseIgnored(const FText& Other) const;
	CORE_API int32 CompareTo(const FText& Other, const ETextComparisonLevel::Type ComparisonLevel = ETextComparisonLevel::Default) const;
	CORE_API int32 CompareToCaseIgnored(const FText& Other) const;
	/** Whether both texts share the same data or the same localization identity. */
	CORE_API bool IdenticalTo(const FText& Other, const ETextIdenticalModeFlags CompareModeFlags = ETextIdenticalModeFlags::None) const;

	CORE_API FText ToLower() const;
	CORE_API FText ToUpper() const;
	CORE_API static FText TrimPreceding(const FText& InText);
	CORE_API static FText TrimTrailing(const FText& InText);
	CORE_API static FText TrimPrecedingAndTrailing(const FText& InText);
	CORE_API static FText Join(const FText& Delimiter, const TArray<FText>& Args);

	CORE_API static FText Format(FTextFormat Fmt, TArray<FFormatArgumentValue>&& InArguments);
	CORE_API static FText Format(FTextFormat Fmt, const TArray<FFormatArgumentValue>& InArguments);
	CORE_API static FText Format(FTextFormat Fmt, const TMap<FString, FFormatArgumentValue>& InArguments);

	/** Replaces {0}, {1}, ... in the pattern with the arguments in order. */
	template <typename... ArgTypes>
		requires(sizeof...(ArgTypes) > 0 && (std::is_constructible_v<FFormatArgumentValue, ArgTypes&&> && ...))
	static FText Format(FTextFormat Fmt, ArgTypes&&... Args);

	template <typename... ArgTypes>
	static FText FormatOrdered(FTextFormat Fmt, ArgTypes&&... Args);

private:
	friend class FTextInspector;
	explicit FText(TSharedPtr<const FTextData> InData) : Data(MoveTemp(InData)) {}
	static FText CreateText(FString&& DisplayString, uint32 Flags, const TCHAR* Namespace = nullptr, const TCHAR* Key = nullptr);

	TSharedPtr<const FTextData> Data;
};

/** A value given to FText::Format. */
struct FFormatArgumentValue
{
	FFormatArgumentValue() : Type(EFormatArgumentType::Int) {}
	FFormatArgumentValue(const int8 Value) : Type(EFormatArgumentType::Int), IntValue(Value) {}
	FFormatArgumentValue(const uint8 Value) : Type(EFormatArgumentType::UInt), UIntValue(Value) {}
	FFormatArgumentValue(const int16 Value) : Type(EFormatArgumentType::Int), IntValue(Value) {}
	FFormatArgumentValue(const uint16 Value) : Type(EFormatArgumentType::UInt), UIntValue(Value) {}
	FFormatArgumentValue(const int32 Value) : Type(EFormatArgumentType::Int), IntValue(Value) {}
	FFormatArgumentValue(const uint32 Value) : Type(EFormatArgumentType::UInt), UIntValue(Value) {}
	FFormatArgumentValue(const int64 Value) : Type(EFormatArgumentType::Int), IntValue(Value) {}
	FFormatArgumentValue(const uint64 Value) : Type(EFormatArgumentType::UInt), UIntValue(Value) {}
	FFormatArgumentValue(const float Value) : Type(EFormatArgumentType::Float), FloatValue(Value) {}
	FFormatArgumentValue(const double Value) : Type(EFormatArgumentType::Double), DoubleValue(Value) {}
	FFormatArgumentValue(const FText& Value) : Type(EFormatArgumentType::Text), TextValue(Value) {}
	FFormatArgumentValue(FText&& Value) : Type(EFormatArgumentType::Text), TextValue(MoveTemp(Value)) {}
	FFormatArgumentValue(ETextGender Value) : Type(EFormatArgumentType::Gender), UIntValue((uint64)Value) {}

	EFormatArgumentType GetType() const { return Type; }
	int64 GetIntValue() const { return IntValue; }
	uint64 GetUIntValue() const { return UIntValue; }
	float GetFloatValue() const { return FloatValue; }
	double GetDoubleValue() const { return DoubleValue; }
	const FText& GetTextValue() const { return TextValue.GetValue(); }

	/** The value as Format writes it. */
	CORE_API FString ToFormattedString() const;

private:
	EFormatArgumentType Type;
	int64 IntValue = 0;
	uint64 UIntValue = 0;
	float FloatValue = 0.0f;
	double DoubleValue = 0.0;
	TOptional<FText> TextValue;
};

typedef TArray<FFormatArgumentValue> FFormatOrderedArguments;
typedef TMap<FString, FFormatArgumentValue> FFormatNamedArguments;

/** A format pattern: "{0} of {1}" or "{Name}"; a backtick escapes the next character. */
class FTextFormat
{
public:
	FTextFormat() = default;
	FTextFormat(const FText& InText) : SourceText(InText) {}
	CORE_API static FTextFormat FromString(const FString& InString);
	CORE_API static FTextFormat FromString(FString&& InString);

	const FText& GetSourceText() const { return SourceText; }
	bool IsValid() const { return true; }

private:
	FText SourceText;
};

template <typename... ArgTypes>
	requires(sizeof...(ArgTypes) > 0 && (std::is_constructible_v<FFormatArgumentValue, ArgTypes&&> && ...))
FText FText::Format(FTextFormat Fmt, ArgTypes&&... Args)
{
	FFormatOrderedArguments Arguments;
	Arguments.Reserve(sizeof...(Args));
	(Arguments.Emplace(Forward<ArgTypes>(Args)), ...);
	return Format(MoveTemp(Fmt), MoveTemp(Arguments));
}

template <typename... ArgTypes>
FText FText::FormatOrdered(FTextFormat Fmt, ArgTypes&&... Args)
{
	return Format(MoveTemp(Fmt), Forward<ArgTypes>(Args)...);
}

/** Reads a text's localization identity and flags. */
class FTextInspector
{
public:
	CORE_API static TOptional<FString> GetNamespace(const FText& Text);
	CORE_API static TOptional<FString> GetKey(const FText& Text);
	CORE_API static const FString* GetSourceString(const FText& Text);
	CORE_API static const FString& GetDisplayString(const FText& Text);
	CORE_API static uint32 GetFlags(const FText& Text);
};

FORCEINLINE FString LexToString(const FText& Text) { return Text.ToString(); }
