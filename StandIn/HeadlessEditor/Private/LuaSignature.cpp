#include "LuaSignature.h"

namespace UE::Vlmr
{
	namespace
	{
		bool IsIdentifier(const FString& Text)
		{
			if (Text.IsEmpty() || FChar::IsDigit(Text[0]))
			{
				return false;
			}
			for (const TCHAR Character : Text.GetCharArray())
			{
				if (Character != 0 && !FChar::IsAlnum(Character) && Character != TEXT('_'))
				{
					return false;
				}
			}
			return true;
		}

		bool ParseParameter(const FString& Text, FLuaParameter& OutParameter)
		{
			FString Name = Text.TrimStartAndEnd();
			if (Name == TEXT("..."))
			{
				OutParameter.Name = Name;
				OutParameter.bOptional = true;
				return true;
			}
			OutParameter.bOptional = Name.EndsWith(TEXT("?"));
			if (OutParameter.bOptional)
			{
				Name = Name.LeftChop(1);
			}
			OutParameter.Name = Name;
			return IsIdentifier(Name);
		}

		bool ParseParameters(const FString& Text, TArray<FLuaParameter>& OutParameters)
		{
			if (Text.TrimStartAndEnd().IsEmpty())
			{
				return true;
			}
			TArray<FString> Parts;
			Text.ParseIntoArray(Parts, TEXT(","), false);
			for (const FString& Part : Parts)
			{
				if (!ParseParameter(Part, OutParameters.AddDefaulted_GetRef()))
				{
					return false;
				}
			}
			return true;
		}

		TArray<FString> SplitAlternatives(const FString& Returns)
		{
			TArray<FString> Alternatives;
			Returns.ParseIntoArray(Alternatives, TEXT(" or "), true);
			for (FString& Alternative : Alternatives)
			{
				Alternative.TrimStartAndEndInline();
			}
			return Alternatives;
		}

		// "job handle" names the handle kind "job".
		bool ParseHandleKind(const FString& Alternative, FString& OutKind)
		{
			const FString Suffix = TEXT(" handle");
			if (!Alternative.EndsWith(Suffix, ESearchCase::CaseSensitive))
			{
				return false;
			}
			OutKind = Alternative.LeftChop(Suffix.Len());
			return IsIdentifier(OutKind);
		}

		FString ToLuaLSType(const FString& Alternative)
		{
			const FString Text = Alternative.TrimStartAndEnd();
			if (Text == TEXT("nil"))
			{
				return TEXT("nil");
			}
			if (Text == TEXT("bool"))
			{
				return TEXT("boolean");
			}
			if (Text == TEXT("true") || Text == TEXT("false") || Text == TEXT("boolean") || Text == TEXT("string") || Text == TEXT("table") || Text == TEXT("table[]") || Text == TEXT("number") || Text == TEXT("integer"))
			{
				return Text;
			}
			if (Text.StartsWith(TEXT("{")) || Text == TEXT("node_info"))
			{
				return TEXT("table");
			}
			FString HandleKind;
			return ParseHandleKind(Text, HandleKind) ? ToLuaLSClassName(HandleKind) : FString(TEXT("any"));
		}
	}

	bool ParseLuaSignature(const FString& Signature, FLuaSignature& OutSignature)
	{
		const FString Text = Signature.TrimStartAndEnd();
		const int32 OpenIndex = Text.Find(TEXT("("), ESearchCase::CaseSensitive);
		if (OpenIndex == INDEX_NONE || !Text.EndsWith(TEXT(")")))
		{
			return false;
		}
		FString Callee = Text.Left(OpenIndex).TrimStartAndEnd();
		const FString ParameterText = Text.Mid(OpenIndex + 1, Text.Len() - OpenIndex - 2);
		if (ParameterText.Contains(TEXT("(")) || ParameterText.Contains(TEXT(")")))
		{
			return false;
		}
		FString Owner;
		FString Name = Callee;
		if (Callee.Split(TEXT(":"), &Owner, &Name) && !IsIdentifier(Owner))
		{
			return false;
		}
		if (!IsIdentifier(Name))
		{
			return false;
		}
		OutSignature.Owner = Owner;
		OutSignature.Name = Name;
		OutSignature.Parameters.Reset();
		return ParseParameters(ParameterText, OutSignature.Parameters);
	}

	FString ToLuaLSReturnType(const FString& Returns)
	{
		TArray<FString> Types;
		for (const FString& Alternative : SplitAlternatives(Returns))
		{
			Types.AddUnique(ToLuaLSType(Alternative));
		}
		if (Types.IsEmpty() || Types.Contains(TEXT("any")))
		{
			return TEXT("any");
		}
		return FString::Join(Types, TEXT("|"));
	}

	TArray<FString> FindHandleKinds(const FString& Returns)
	{
		TArray<FString> Kinds;
		for (const FString& Alternative : SplitAlternatives(Returns))
		{
			FString Kind;
			if (ParseHandleKind(Alternative, Kind))
			{
				Kinds.AddUnique(Kind);
			}
		}
		return Kinds;
	}

	FString ToLuaLSClassName(const FString& HandleKind)
	{
		return TEXT("vlmr.") + HandleKind;
	}
}
