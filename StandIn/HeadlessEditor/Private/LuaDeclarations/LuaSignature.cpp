#include "LuaSignature.h"

namespace UE::Vlmr
{
	namespace
	{
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
			return IsLuaIdentifier(Name);
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
		if (Callee.Split(TEXT(":"), &Owner, &Name) && !IsLuaIdentifier(Owner))
		{
			return false;
		}
		if (!IsLuaIdentifier(Name))
		{
			return false;
		}
		OutSignature.Owner = Owner;
		OutSignature.Name = Name;
		OutSignature.Parameters.Reset();
		return ParseParameters(ParameterText, OutSignature.Parameters);
	}

	bool IsLuaIdentifier(const FString& Text)
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
}
