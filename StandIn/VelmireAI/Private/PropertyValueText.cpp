#include "PropertyValueText.h"

#include "Misc/OutputDevice.h"
#include "UObject/UnrealType.h"

namespace UE::VelmireAI::Private
{
	namespace
	{
		// Keeps the first complaint a property parser reports while it imports.
		class FImportErrorCapture : public FOutputDevice
		{
		public:
			virtual void Serialize(const TCHAR* Text, ELogVerbosity::Type Verbosity, const FName& Category) override
			{
				if (FirstError.IsEmpty() && Text)
				{
					FirstError = Text;
				}
			}

			FString FirstError;
		};

		bool HasOnlyWhitespace(const TCHAR* Text)
		{
			while (*Text && FChar::IsWhitespace(*Text))
			{
				++Text;
			}
			return *Text == 0;
		}
	}

	FString DescribePropertyType(const FProperty* Property)
	{
		if (!Property)
		{
			return TEXT("(no property)");
		}
		FString ExtendedType;
		const FString Type = Property->GetCPPType(&ExtendedType, 0);
		return Type + ExtendedType;
	}

	bool ImportPropertyText(const FProperty* Property, void* Value, const FString& Text, UObject* Owner, int32 PortFlags,
		const FString& PropertyPath, FString& OutError)
	{
		FImportErrorCapture ErrorCapture;
		const TCHAR* End = Property->ImportText_Direct(*Text, Value, Owner, PortFlags, &ErrorCapture);
		if (End && HasOnlyWhitespace(End))
		{
			return true;
		}
		OutError = FString::Printf(TEXT("cannot set %s (%s) from '%s'"), *PropertyPath, *DescribePropertyType(Property), *Text);
		if (!End)
		{
			OutError += ErrorCapture.FirstError.IsEmpty() ? FString(TEXT(": not valid export text")) : TEXT(": ") + ErrorCapture.FirstError;
		}
		else
		{
			// Stand-in choice: text left over after the value is refused rather than silently ignored.
			OutError += FString::Printf(TEXT(": unexpected text '%s' after the value"), End);
		}
		return false;
	}
}
