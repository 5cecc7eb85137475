#include "frame/BareSnapIn.h"
#include "frame/FilledServer.h"
#include "frame/nodeData.h"
#include "kit/windows.h"

namespace Acceptance
{
namespace
{

struct ScopeRow
{
    const wchar_t* path;
    const wchar_t* nodeType;
    int image;
    int children;
};

struct ResultRow
{
    const wchar_t* parent;
    std::size_t count;
    const wchar_t* displayName;
    const wchar_t* nodeType;
    int image;
};

void PrintTo(const ScopeRow& row, std::ostream* out)
{
    *out << '"' << narrow(row.path) << '"';
}

void PrintTo(const ResultRow& row, std::ostream* out)
{
    *out << "rows of \"" << narrow(row.parent) << '"';
}

// The last part of a path.
std::wstring nameIn(const std::wstring& path)
{
    return path.substr(path.rfind(L'\\') + 1);
}

class ScopeNodes : public FilledServer, public testing::WithParamInterface<ScopeRow>
{
};

TEST_P(ScopeNodes, areInsertedAsTheTableHasThem)
{
    BareSnapIn snapIn;
    const SCOPEDATAITEM record = snapIn.node(GetParam().path);
    EXPECT_EQ(static_cast<DWORD>(SDI_STR | SDI_PARAM | SDI_CHILDREN | SDI_IMAGE | SDI_OPENIMAGE), record.mask);
    EXPECT_EQ(-1, reinterpret_cast<LONG_PTR>(record.displayname)) << "the console is to ask for the name";
    EXPECT_EQ(GetParam().image, record.nImage);
    EXPECT_EQ(GetParam().image, record.nOpenImage);
    EXPECT_EQ(GetParam().children, record.cChildren);
    EXPECT_NE(0, record.lParam);
}

TEST_P(ScopeNodes, tellTheirNameAndKind)
{
    BareSnapIn snapIn;
    const SCOPEDATAITEM node = snapIn.node(GetParam().path);
    const std::wstring name = nameIn(GetParam().path);
    EXPECT_EQ(name, snapIn.displayName(node.lParam));
    const auto object = snapIn.object(node.lParam);
    EXPECT_EQ(name, displayNameOf(object.Get()));
    EXPECT_EQ(guid(GetParam().nodeType), nodeTypeOf(object.Get()));
    EXPECT_EQ(GetParam().nodeType, nodeTypeTextOf(object.Get()));
    EXPECT_EQ(snapInClass, classIdOf(object.Get()));
}

TEST_P(ScopeNodes, answerForTheirImages)
{
    BareSnapIn snapIn;
    SCOPEDATAITEM asked{};
    asked.mask = SDI_IMAGE | SDI_OPENIMAGE;
    asked.lParam = snapIn.node(GetParam().path).lParam;
    asked.nImage = asked.nOpenImage = -7;
    ASSERT_EQ(S_OK, snapIn.data->GetDisplayInfo(&asked));
    EXPECT_EQ(GetParam().image, asked.nImage);
    EXPECT_EQ(GetParam().image, asked.nOpenImage);
    EXPECT_EQ(nullptr, asked.displayname) << "the name was not asked for";
}

TEST_P(ScopeNodes, asARowHaveTheirNameInEveryColumnAndTheirImage)
{
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    RESULTDATAITEM asked{};
    asked.mask = RDI_STR | RDI_IMAGE;
    asked.bScopeItem = TRUE;
    asked.lParam = snapIn.node(GetParam().path).lParam;
    for (const int column : {0, 1, 9})
    {
        asked.nCol = column;
        ASSERT_EQ(S_OK, view->component->GetDisplayInfo(&asked));
        EXPECT_EQ(nameIn(GetParam().path), asked.str);
        EXPECT_EQ(GetParam().image, asked.nImage);
    }
}

TEST_P(ScopeNodes, areShownInTheDefaultList)
{
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    wchar_t nothing[] = L"";
    LPOLESTR type = nothing;
    long options = 77;
    // Only hot folders can be selected several at once, and only a list with options of its own says so.
    const bool several = std::wstring(GetParam().path) == L"Hot Folders";
    EXPECT_EQ(several ? S_OK : S_FALSE,
              view->component->GetResultViewType(snapIn.node(GetParam().path).lParam, &type, &options));
    EXPECT_EQ(nullptr, type);
    EXPECT_EQ(several ? MMC_VIEW_OPTIONS_MULTISELECT : MMC_VIEW_OPTIONS_NONE, options);
}

INSTANTIATE_TEST_SUITE_P(
    All, ScopeNodes,
    testing::Values(ScopeRow{L"About KV Tessaro", L"{3F7862F1-CC1A-424B-90F8-D57BC7EBE021}", 14, 0},
                    ScopeRow{L"Hot Folders", L"{6AE6B122-195A-4BA7-BB77-202AB5C3BABB}", 8, 0},
                    ScopeRow{L"Server Templates", L"{D7117DDF-483E-4512-8FBF-4F6F6A361B8B}", 8, 1},
                    ScopeRow{L"Server Templates\\Invoices", L"{27967510-9844-4A62-86F9-C98CBEBB952B}", 8, 1},
                    ScopeRow{L"Server Templates\\Invoices\\Users", L"{4FACC623-0D1D-41C8-93F4-6F01450519FE}", 19, 0},
                    ScopeRow{L"Server Templates\\Invoices\\Images", L"{B541A7C3-A80A-418A-A369-7F340A53BF0C}", 8, 0},
                    ScopeRow{L"Users", L"{7DA27E6C-61DF-4D4D-A4DE-9EA55FAD50FF}", 19, 0},
                    ScopeRow{L"Server Certificates", L"{B4C33637-C2C8-4F22-8B19-C6E81BABCA0B}", 7, 0},
                    ScopeRow{L"Engine Settings", L"{C9CFDCE2-4C8D-457B-8492-2EA136475ABA}", 1, 2},
                    ScopeRow{L"Engine Settings\\Listener Configuration", L"{9B53FF22-5599-4C83-A6A4-1707D06AC539}", 13,
                             0},
                    ScopeRow{L"Engine Settings\\AFP Encoder", L"{EE8DB654-09FB-4CAB-AB61-D91F314D9DAB}", 1, 0},
                    ScopeRow{L"Engine Settings\\Private Fonts", L"{53C8D41A-A526-42C8-A307-959F91F3097C}", 5, 0},
                    ScopeRow{L"Log", L"{AFF1F810-6492-44B3-969A-6441B44B4D77}", 8, 1},
                    ScopeRow{L"Log\\Log Files", L"{036344FF-BD42-45E6-9077-66F1CB3BF96C}", 8, 0}));

using RootNode = ConsoleTest;

TEST_F(RootNode, tellsItsNameAndKind)
{
    BareSnapIn snapIn;
    EXPECT_EQ(L"KV Tessaro 2010", snapIn.displayName(0));
    const auto object = snapIn.object();
    EXPECT_EQ(L"KV Tessaro 2010", displayNameOf(object.Get()));
    EXPECT_EQ(guid(L"{5E04C557-3019-11D3-8856-204C4F4F5020}"), nodeTypeOf(object.Get()));
    EXPECT_EQ(L"{5E04C557-3019-11D3-8856-204C4F4F5020}", nodeTypeTextOf(object.Get()));
    EXPECT_EQ(snapInClass, classIdOf(object.Get()));
}

TEST_F(RootNode, answersForItsImages)
{
    BareSnapIn snapIn;
    SCOPEDATAITEM asked{};
    asked.mask = SDI_IMAGE | SDI_OPENIMAGE;
    ASSERT_EQ(S_OK, snapIn.data->GetDisplayInfo(&asked));
    EXPECT_EQ(1, asked.nImage);
    EXPECT_EQ(1, asked.nOpenImage);
}

class ResultRows : public FilledServer, public testing::WithParamInterface<ResultRow>
{
};

// Proves: TemplateResourcesItem and TemplateUserItem have the same node type.
TEST_P(ResultRows, areInsertedAsTheTableHasThem)
{
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    const SCOPEDATAITEM parent = snapIn.node(GetParam().parent);
    ASSERT_EQ(S_OK, view->component->Notify(snapIn.object(parent.lParam).Get(), MMCN_SHOW, TRUE, parent.ID));
    ASSERT_EQ(GetParam().count, view->console.results.inserted.size());
    for (const RESULTDATAITEM& row : view->console.results.inserted)
    {
        EXPECT_EQ(static_cast<DWORD>(RDI_STR | RDI_IMAGE | RDI_PARAM), row.mask);
        EXPECT_EQ(-1, reinterpret_cast<LONG_PTR>(row.str)) << "the console is to ask for the texts";
        EXPECT_EQ(GetParam().image, row.nImage);
        EXPECT_EQ(0, row.nCol);
        EXPECT_FALSE(row.bScopeItem);
        const auto object = view->object(row.lParam);
        EXPECT_EQ(GetParam().displayName, displayNameOf(object.Get()));
        EXPECT_EQ(guid(GetParam().nodeType), nodeTypeOf(object.Get()));
        EXPECT_EQ(GetParam().nodeType, nodeTypeTextOf(object.Get()));
        EXPECT_EQ(snapInClass, classIdOf(object.Get()));
    }
}

constexpr wchar_t settingRow[] = L"{5E04C561-3019-11D3-8856-204C4F4F5020}";

INSTANTIATE_TEST_SUITE_P(
    All, ResultRows,
    testing::Values(
        ResultRow{L"About KV Tessaro", 4, L"Property Item", L"{FCD66532-7182-476C-8D0B-A8AC16FA9FE2}", 2},
        // A hot folder goes by its own name.
        ResultRow{L"Hot Folders", 1, L"One", L"{5CEF680A-BF2E-49F5-B074-59D8CB29612D}", 8},
        ResultRow{L"Server Templates\\Invoices", 1, L"Template", L"{E0DF66EB-957A-4C1D-B18E-6E4D55DBF3C9}", 20},
        // These two share one kind: kept as is.
        ResultRow{L"Server Templates\\Invoices\\Users", 1, L"Template", L"{5FBBCEF6-3CAC-4472-AA4D-36BCD0FC7DA3}", 23},
        ResultRow{L"Server Templates\\Invoices\\Images", 1, L"File", L"{5FBBCEF6-3CAC-4472-AA4D-36BCD0FC7DA3}", 22},
        ResultRow{L"Users", 1, L"Guest", L"{EF0A80E6-B3FF-4F37-9C1A-EC7DAF81D2F9}", 23},
        ResultRow{L"Server Certificates", 1, L"Certificate Item", L"{EFB371E2-FC43-4D1A-A071-56F53151F423}", 7},
        ResultRow{L"Engine Settings\\Listener Configuration", 3, L"Property Item", settingRow, 2},
        ResultRow{L"Engine Settings\\AFP Encoder", 4, L"Property Item", settingRow, 2},
        ResultRow{L"Engine Settings\\Private Fonts", 2, L"Private Font Item", L"{10158B7C-D952-49E4-8ACA-CD3C47E3A37D}",
                  4},
        ResultRow{L"Log", 3, L"Property Item", settingRow, 2},
        ResultRow{L"Log\\Log Files", 2, L"Log Property Item", L"{0C63EBA1-9EF4-432B-AC5D-945439EA7937}", 16}));

} // namespace
} // namespace Acceptance
