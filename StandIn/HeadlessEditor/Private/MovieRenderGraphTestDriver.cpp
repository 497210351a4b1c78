#include "MovieRenderGraphTestDriver.h"

#include "Graph/MovieGraphCommon.h"
#include "Graph/MovieGraphConfig.h"
#include "Math/IntPoint.h"
#include "UObject/Class.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectGlobals.h"

namespace UE::Vlmr
{
	namespace
	{
		UMovieGraphConfig* LoadGraph(const FString& Path)
		{
			if (UObject* Found = StaticLoadObject(UMovieGraphConfig::StaticClass(), nullptr, *Path, nullptr, LOAD_NoWarn))
			{
				return Cast<UMovieGraphConfig>(Found);
			}
			FString AssetName;
			Path.Split(TEXT("/"), nullptr, &AssetName, ESearchCase::CaseSensitive, ESearchDir::FromEnd);
			return Cast<UMovieGraphConfig>(StaticLoadObject(UMovieGraphConfig::StaticClass(), nullptr, *(Path + TEXT(".") + AssetName), nullptr, LOAD_NoWarn));
		}

		// An enumerator of the type's enum by name, hidden None and Count excluded; INDEX_NONE when there is none.
		template<class TEnum>
		int64 ParseEnumerator(const FString& Name)
		{
			const int64 Value = StaticEnum<TEnum>()->GetValueByNameString(Name);
			const bool bHidden = Value == int64(TEnum::None) || Value == int64(TEnum::Count);
			return bHidden ? INDEX_NONE : Value;
		}

		// Stand-in choice: the types that need a type object get one the engine always has.
		UObject* DefaultTypeObjectFor(const EMovieGraphValueType ValueType)
		{
			switch (ValueType)
			{
			case EMovieGraphValueType::Enum:
				return StaticEnum<EMovieGraphBranchRestriction>();
			case EMovieGraphValueType::Struct:
				return TBaseStructure<FIntPoint>::Get();
			case EMovieGraphValueType::Object:
			case EMovieGraphValueType::SoftObject:
			case EMovieGraphValueType::Class:
			case EMovieGraphValueType::SoftClass:
				return UObject::StaticClass();
			default:
				return nullptr;
			}
		}

		// The new variable's name, or the reason it could not be added in OutError.
		FString AddTypedVariable(const FString& GraphPath, const FString& Name, const FString& ValueTypeName, const FString& ContainerTypeName, FString& OutError)
		{
			const TStrongObjectPtr<UMovieGraphConfig> Graph(LoadGraph(GraphPath));
			if (!Graph)
			{
				OutError = FString::Printf(TEXT("editor.add_typed_variable: no graph at %s"), *GraphPath);
				return FString();
			}
			const int64 ValueType = ParseEnumerator<EMovieGraphValueType>(ValueTypeName);
			if (ValueType == INDEX_NONE)
			{
				OutError = FString::Printf(TEXT("editor.add_typed_variable: this engine has no value type %s"), *ValueTypeName);
				return FString();
			}
			const int64 ContainerType = ContainerTypeName.IsEmpty() ? int64(EMovieGraphContainerType::None) : ParseEnumerator<EMovieGraphContainerType>(ContainerTypeName);
			if (ContainerType == INDEX_NONE)
			{
				OutError = FString::Printf(TEXT("editor.add_typed_variable: this engine has no container type %s"), *ContainerTypeName);
				return FString();
			}
			const TStrongObjectPtr<UMovieGraphVariable> Variable(Graph->AddVariable(FName(*Name)));
			const EMovieGraphValueType TypedValue = EMovieGraphValueType(ValueType);
			Variable->SetValueType(TypedValue, DefaultTypeObjectFor(TypedValue));
			Variable->SetValueContainerType(EMovieGraphContainerType(ContainerType));
			Graph->MarkPackageDirty();
			return Variable->GetMemberName();
		}
	}

	int LuaAddTypedVariable(lua_State* L)
	{
		const char* GraphPath = luaL_checkstring(L, 1);
		const char* Name = luaL_checkstring(L, 2);
		const char* ValueType = luaL_checkstring(L, 3);
		const char* ContainerType = luaL_optstring(L, 4, "");
		bool bFailed = false;
		{
			FString Error;
			const FString Result = AddTypedVariable(UTF8_TO_TCHAR(GraphPath), UTF8_TO_TCHAR(Name), UTF8_TO_TCHAR(ValueType), UTF8_TO_TCHAR(ContainerType), Error);
			bFailed = !Error.IsEmpty();
			const FTCHARToUTF8 Utf8(bFailed ? *Error : *Result);
			lua_pushlstring(L, reinterpret_cast<const char*>(Utf8.Get()), size_t(Utf8.Length()));
		}
		return bFailed ? lua_error(L) : 1;
	}
}
