#include "Numbers/CallingCodes.h"

#include "Numbers/PrefixLists.h"

#include <algorithm>
#include <array>
#include <climits>

namespace PimManager::PhoneBook
{

namespace
{

using namespace std::string_view_literals;

// Facts from public sources: the list of assigned country codes (ITU-T E.164.D), the dialling procedures
// (ITU-T E.164.C), and the national numbering plans that administrations publish at the ITU (ITU-T E.129).

// Prefixes as PrefixLists.h describes them.
enum Trunk : uchar
{
    TNone,
    T0,
    TNanp,
    TRussia,
    THungary,
    TMexico,
    TBrazil,
    TColombia,
    TBelarus,
    TLithuania,
    TTurkmenistan,
    TUzbekistan,
    TChina,
    TMarshall,
    TBolivia,
    TChile,
    TMongolia
};

constexpr std::array<std::string_view, TMongolia + 1> s_kTrunks = { {
    "",
    "0",
    "1=10",
    "8=10",
    "06",
    "044=10 045=10 01=10 1=10",
    "0nn=10 0nn=11 0",
    "0=10 0n=10 0",
    "80=9 8=9 8=10 0=9",
    "8=8 0=8",
    "8=8",
    "8=9",
    "125nn=11 179nn=11 0",
    "1=7",
    "0nn=8 0",
    "0=9 1nn=9",
    "01=8 02=8 0",
} };

enum International : uchar
{
    I00,
    INanp,
    IRussia,
    IAustralia,
    IJapan,
    IKorea,
    IThailand,
    ICambodia,
    ISingapore,
    IIndonesia,
    IIsrael,
    IBrazil,
    IColombia,
    IChile,
    ICuba,
    IGuyana,
    IMongolia,
    IKenya,
    IUganda,
    ITanzania,
    INigeria,
    IMauritius,
    ISamoa,
    ITaiwan,
    INewZealand,
    IFiji,
    ISolomon,
    IMaldives,
    IFinland,
    ILithuania,
    IParaguay,
    IHongKong,
    IPalau
};

constexpr std::array<std::string_view, IPalau + 1> s_kInternationals = { {
    "00",
    "011 00",
    "810 00",
    "0011 0018 00",
    "010",
    "001 002 005 006 008 007nn 00",
    "001 003 004 005 006 007 008 009 00",
    "001 007 008 009 00",
    "001 002 008 018 019 00",
    "001 007 008 009 01017 00",
    "00 01n",
    "0014 0015 0021 0023 0025 0031 0041 00",
    "005 007 009 00",
    "1nn0 00",
    "119 00",
    "001 00",
    "001 002 00",
    "000 00",
    "000 005 007 00",
    "000 005 006 00",
    "009 00",
    "020 00",
    "00 0",
    "002 005 006 007 009 016 017 019 00",
    "00 0161",
    "00 052",
    "00 01",
    "00 019",
    "00 990 994 999",
    "00 810",
    "00 002",
    "001 002 006 007 008 009 00",
    "011 012 00",
} };

constexpr auto s_kTrunkLists = ListsOf<CountWords( s_kTrunks )>( s_kTrunks );
constexpr auto s_kInternationalLists = ListsOf<CountWords( s_kInternationals )>( s_kInternationals );

constexpr uchar s_kPlain = CallingCode::NoRule;
constexpr uchar s_kZero = CallingCode::KeepsZero;
constexpr uchar s_kSanMarino = CallingCode::KeepsZero | CallingCode::SanMarino;

// clang-format off
// Code, fewest, most and complete digits, international prefix, trunk prefix, rule.
constexpr std::array<CallingCode, 215> s_kCodes = { {
    {   1, 10, 10, 10, INanp,       TNanp,         s_kPlain },
    {   7, 10, 10, 10, IRussia,     TRussia,       s_kPlain },
    {  20,  8, 10, 10, I00,         T0,            s_kPlain },
    {  27,  5, 10,  9, I00,         T0,            s_kPlain },
    {  30, 10, 12, 10, I00,         TNone,         s_kPlain },
    {  31,  5, 11,  9, I00,         T0,            s_kPlain },
    {  32,  8,  9,  9, I00,         T0,            s_kPlain },
    {  33,  9,  9,  9, I00,         T0,            s_kPlain },
    {  34,  9,  9,  0, I00,         TNone,         s_kPlain },
    {  36,  8,  9,  9, I00,         THungary,      s_kPlain },
    {  39,  6, 12, 10, I00,         TNone,         s_kZero },
    {  40,  6,  9,  9, I00,         T0,            s_kPlain },
    {  41,  9, 12,  9, I00,         T0,            s_kPlain },
    {  43,  4, 13,  0, I00,         T0,            s_kPlain },
    {  44,  7, 10, 10, I00,         T0,            s_kPlain },
    {  45,  8,  8,  0, I00,         TNone,         s_kPlain },
    {  46,  6, 12,  0, I00,         T0,            s_kPlain },
    {  47,  5,  8,  8, I00,         TNone,         s_kZero },
    {  48,  6, 10,  9, I00,         TNone,         s_kPlain },
    {  49,  4, 13,  0, I00,         T0,            s_kPlain },
    {  51,  8,  9,  9, I00,         T0,            s_kPlain },
    {  52, 10, 10, 10, I00,         TMexico,       s_kPlain },
    {  53,  6, 10,  0, ICuba,       T0,            s_kPlain },
    {  54, 10, 12, 10, I00,         T0,            CallingCode::Argentina },
    {  55,  8, 11, 11, IBrazil,     TBrazil,       s_kPlain },
    {  56,  9, 11,  9, IChile,      TChile,        s_kPlain },
    {  57, 10, 11, 10, IColombia,   TColombia,     s_kPlain },
    {  58, 10, 10, 10, I00,         T0,            s_kPlain },
    {  60,  8, 10,  0, I00,         T0,            s_kPlain },
    {  61,  5, 10,  9, IAustralia,  T0,            s_kPlain },
    {  62,  7, 13,  0, IIndonesia,  T0,            s_kPlain },
    {  63,  6, 13, 10, I00,         T0,            s_kPlain },
    {  64,  5, 10,  0, INewZealand, T0,            s_kPlain },
    {  65,  8, 11,  8, ISingapore,  TNone,         s_kPlain },
    {  66,  8, 13,  9, IThailand,   T0,            s_kPlain },
    {  81,  8, 17, 10, IJapan,      T0,            s_kPlain },
    {  82,  5, 14,  0, IKorea,      T0,            s_kPlain },
    {  84,  7, 10,  0, I00,         T0,            s_kPlain },
    {  86,  7, 12, 11, I00,         TChina,        s_kPlain },
    {  90,  7, 13, 10, I00,         T0,            s_kPlain },
    {  91,  8, 13, 10, I00,         T0,            s_kPlain },
    {  92,  8, 12, 10, I00,         T0,            s_kPlain },
    {  93,  9,  9,  9, I00,         T0,            s_kPlain },
    {  94,  9,  9,  9, I00,         T0,            s_kPlain },
    {  95,  6, 10,  0, I00,         T0,            s_kPlain },
    {  98,  4, 10, 10, I00,         T0,            s_kPlain },
    { 211,  9,  9,  9, I00,         T0,            s_kPlain },
    { 212,  9,  9,  9, I00,         T0,            s_kPlain },
    { 213,  8,  9,  9, I00,         T0,            s_kPlain },
    { 216,  8,  8,  0, I00,         TNone,         s_kPlain },
    { 218,  8,  9,  9, I00,         T0,            s_kPlain },
    { 220,  7,  7,  0, I00,         TNone,         s_kPlain },
    { 221,  9,  9,  0, I00,         TNone,         s_kPlain },
    { 222,  8,  8,  0, I00,         TNone,         s_kPlain },
    { 223,  8,  8,  0, I00,         TNone,         s_kPlain },
    { 224,  8,  9,  9, I00,         TNone,         s_kPlain },
    { 225,  8, 10, 10, I00,         TNone,         s_kZero },
    { 226,  8,  8,  0, I00,         TNone,         s_kPlain },
    { 227,  8,  8,  0, I00,         TNone,         s_kZero },
    { 228,  8,  8,  0, I00,         TNone,         s_kPlain },
    { 229,  8, 10, 10, I00,         TNone,         s_kZero },
    { 230,  7, 10,  8, IMauritius,  TNone,         s_kPlain },
    { 231,  7,  9,  0, I00,         T0,            s_kPlain },
    { 232,  8,  8,  8, I00,         T0,            s_kPlain },
    { 233,  8,  9,  9, I00,         T0,            s_kPlain },
    { 234,  7, 14, 10, INigeria,    T0,            s_kPlain },
    { 235,  8,  8,  0, I00,         TNone,         s_kPlain },
    { 236,  8,  8,  0, I00,         TNone,         s_kPlain },
    { 237,  8,  9,  9, I00,         TNone,         s_kPlain },
    { 238,  7,  7,  0, ISamoa,      TNone,         s_kPlain },
    { 239,  7,  7,  0, I00,         TNone,         s_kPlain },
    { 240,  9,  9,  0, I00,         TNone,         s_kPlain },
    { 241,  7,  9,  8, I00,         TNone,         s_kZero },
    { 242,  9,  9,  0, I00,         TNone,         s_kZero },
    { 243,  7,  9,  9, I00,         T0,            s_kPlain },
    { 244,  9,  9,  0, I00,         TNone,         s_kPlain },
    { 245,  7,  9,  9, I00,         TNone,         s_kPlain },
    { 246,  7,  7,  0, I00,         TNone,         s_kPlain },
    { 247,  4,  6,  0, I00,         TNone,         s_kPlain },
    { 248,  7,  7,  0, I00,         TNone,         s_kPlain },
    { 249,  9,  9,  9, I00,         T0,            s_kPlain },
    { 250,  8,  9,  9, I00,         T0,            s_kPlain },
    { 251,  9,  9,  9, I00,         T0,            s_kPlain },
    { 252,  6,  9,  0, I00,         T0,            s_kPlain },
    { 253,  8,  8,  0, I00,         TNone,         s_kPlain },
    { 254,  7, 10,  9, IKenya,      T0,            s_kPlain },
    { 255,  9,  9,  9, ITanzania,   T0,            s_kPlain },
    { 256,  9,  9,  9, IUganda,     T0,            s_kPlain },
    { 257,  8,  8,  0, I00,         TNone,         s_kPlain },
    { 258,  8,  9,  9, I00,         TNone,         s_kPlain },
    { 260,  9,  9,  9, I00,         T0,            s_kPlain },
    { 261,  9,  9,  9, I00,         T0,            s_kPlain },
    { 262,  9,  9,  9, I00,         T0,            s_kPlain },
    { 263,  5, 10,  0, I00,         T0,            s_kPlain },
    { 264,  8,  9,  0, I00,         T0,            s_kPlain },
    { 265,  7,  9,  9, I00,         T0,            s_kPlain },
    { 266,  8,  8,  0, I00,         TNone,         s_kPlain },
    { 267,  7, 10,  8, I00,         TNone,         s_kZero },
    { 268,  8,  9,  8, I00,         TNone,         s_kZero },
    { 269,  7,  7,  0, I00,         TNone,         s_kPlain },
    { 290,  4,  5,  5, I00,         TNone,         s_kPlain },
    { 291,  7,  7,  7, I00,         T0,            s_kPlain },
    { 297,  7,  7,  0, I00,         TNone,         s_kPlain },
    { 298,  6,  6,  0, I00,         TNone,         s_kPlain },
    { 299,  6,  6,  0, I00,         TNone,         s_kPlain },
    { 350,  8,  8,  0, I00,         TNone,         s_kPlain },
    { 351,  9,  9,  0, I00,         TNone,         s_kPlain },
    { 352,  4, 11,  9, I00,         TNone,         s_kPlain },
    { 353,  7, 10,  0, I00,         T0,            s_kPlain },
    { 354,  7,  9,  7, I00,         TNone,         s_kPlain },
    { 355,  6,  9,  9, I00,         T0,            s_kPlain },
    { 356,  8,  8,  0, I00,         TNone,         s_kPlain },
    { 357,  8,  8,  0, I00,         TNone,         s_kPlain },
    { 358,  5, 12,  0, IFinland,    T0,            s_kPlain },
    { 359,  6,  9,  9, I00,         T0,            s_kPlain },
    { 370,  8,  8,  8, ILithuania,  TLithuania,    s_kPlain },
    { 371,  8,  8,  0, I00,         TNone,         s_kPlain },
    { 372,  7, 10,  8, I00,         TNone,         s_kPlain },
    { 373,  8,  8,  8, I00,         T0,            s_kPlain },
    { 374,  8,  8,  8, I00,         T0,            s_kPlain },
    { 375,  6, 11,  9, IRussia,     TBelarus,      s_kPlain },
    { 376,  6,  9,  6, I00,         TNone,         s_kPlain },
    { 377,  8,  9,  0, I00,         T0,            s_kPlain },
    { 378,  6, 10, 10, I00,         TNone,         s_kSanMarino },
    { 380,  9, 10,  9, I00,         T0,            s_kPlain },
    { 381,  6, 12,  0, I00,         T0,            s_kPlain },
    { 382,  8,  9,  8, I00,         T0,            s_kPlain },
    { 383,  8,  9,  8, I00,         T0,            s_kPlain },
    { 385,  6,  9,  0, I00,         T0,            s_kPlain },
    { 386,  5,  8,  8, I00,         T0,            s_kPlain },
    { 387,  8,  9,  8, I00,         T0,            s_kPlain },
    { 389,  8,  8,  8, I00,         T0,            s_kPlain },
    { 420,  9, 12,  9, I00,         TNone,         s_kPlain },
    { 421,  6,  9,  9, I00,         T0,            s_kPlain },
    { 423,  7,  9,  7, I00,         T0,            s_kPlain },
    { 500,  5,  5,  0, I00,         TNone,         s_kPlain },
    { 501,  7, 11,  7, I00,         TNone,         s_kZero },
    { 502,  8, 11,  8, I00,         TNone,         s_kPlain },
    { 503,  7, 11,  8, I00,         TNone,         s_kPlain },
    { 504,  8, 11,  8, I00,         TNone,         s_kPlain },
    { 505,  8,  8,  0, I00,         TNone,         s_kPlain },
    { 506,  8, 10,  8, I00,         TNone,         s_kPlain },
    { 507,  7, 11,  8, I00,         TNone,         s_kPlain },
    { 508,  6,  9,  0, I00,         T0,            s_kPlain },
    { 509,  8,  8,  0, I00,         TNone,         s_kPlain },
    { 590,  9,  9,  9, I00,         T0,            s_kPlain },
    { 591,  8,  9,  8, I00,         TBolivia,      s_kPlain },
    { 592,  7,  7,  0, IGuyana,     TNone,         s_kPlain },
    { 593,  8, 11,  9, I00,         T0,            s_kPlain },
    { 594,  9,  9,  9, I00,         T0,            s_kPlain },
    { 595,  6, 11,  9, IParaguay,   T0,            s_kPlain },
    { 596,  9,  9,  9, I00,         T0,            s_kPlain },
    { 597,  6,  7,  7, I00,         TNone,         s_kPlain },
    { 598,  7, 13,  8, I00,         T0,            s_kPlain },
    { 599,  7,  8,  0, I00,         TNone,         s_kPlain },
    { 670,  7,  8,  8, I00,         TNone,         s_kPlain },
    { 672,  6,  6,  0, I00,         TNone,         s_kPlain },
    { 673,  7,  7,  0, I00,         TNone,         s_kPlain },
    { 674,  7,  7,  0, I00,         TNone,         s_kPlain },
    { 675,  7,  8,  8, I00,         TNone,         s_kPlain },
    { 676,  5,  7,  7, I00,         TNone,         s_kZero },
    { 677,  5,  7,  7, ISolomon,    TNone,         s_kPlain },
    { 678,  5,  7,  7, I00,         TNone,         s_kPlain },
    { 679,  7, 11,  7, IFiji,       TNone,         s_kZero },
    { 680,  7,  7,  0, IPalau,      TNone,         s_kPlain },
    { 681,  6,  9,  6, I00,         TNone,         s_kPlain },
    { 682,  5,  5,  0, I00,         TNone,         s_kPlain },
    { 683,  4,  7,  4, I00,         TNone,         s_kPlain },
    { 685,  5, 10,  7, ISamoa,      TNone,         s_kPlain },
    { 686,  5,  8,  0, I00,         T0,            s_kPlain },
    { 687,  6,  6,  0, I00,         TNone,         s_kZero },
    { 688,  5,  7,  0, I00,         TNone,         s_kPlain },
    { 689,  6,  9,  8, I00,         TNone,         s_kPlain },
    { 690,  4,  7,  4, I00,         TNone,         s_kPlain },
    { 691,  7,  7,  0, I00,         TNone,         s_kPlain },
    { 692,  7,  7,  7, INanp,       TMarshall,     s_kPlain },
    { 800,  8,  8,  0, I00,         TNone,         s_kPlain },
    { 808,  8,  8,  0, I00,         TNone,         s_kPlain },
    { 850,  6, 10,  0, I00,         T0,            s_kPlain },
    { 852,  5, 11,  8, IHongKong,   TNone,         s_kPlain },
    { 853,  7,  8,  8, I00,         TNone,         s_kZero },
    { 855,  8, 10,  0, ICambodia,   T0,            s_kPlain },
    { 856,  8, 10,  0, I00,         T0,            s_kPlain },
    { 870,  7, 12,  0, I00,         TNone,         s_kPlain },
    { 878, 10, 12,  0, I00,         TNone,         s_kPlain },
    { 880,  6, 10, 10, I00,         T0,            s_kPlain },
    { 881,  8, 12,  0, I00,         TNone,         s_kPlain },
    { 882,  7, 12,  0, I00,         TNone,         s_kPlain },
    { 883,  8, 12,  0, I00,         TNone,         s_kPlain },
    { 886,  7, 11,  9, ITaiwan,     T0,            s_kPlain },
    { 888, 11, 11,  0, I00,         TNone,         s_kPlain },
    { 960,  7, 10,  7, IMaldives,   TNone,         s_kPlain },
    { 961,  7,  8,  8, I00,         T0,            s_kPlain },
    { 962,  8,  9,  9, I00,         T0,            s_kPlain },
    { 963,  8,  9,  9, I00,         T0,            s_kPlain },
    { 964,  8, 10, 10, I00,         T0,            s_kPlain },
    { 965,  7,  8,  8, I00,         TNone,         s_kPlain },
    { 966,  9, 10,  9, I00,         T0,            s_kPlain },
    { 967,  7,  9,  9, I00,         T0,            s_kPlain },
    { 968,  7,  9,  8, I00,         TNone,         s_kPlain },
    { 970,  8, 10,  9, I00,         T0,            s_kPlain },
    { 971,  5, 12,  9, I00,         T0,            s_kPlain },
    { 972,  7, 12,  9, IIsrael,     T0,            s_kPlain },
    { 973,  8,  8,  0, I00,         TNone,         s_kPlain },
    { 974,  7,  9,  8, I00,         TNone,         s_kPlain },
    { 975,  7,  8,  8, I00,         TNone,         s_kPlain },
    { 976,  8, 10,  8, IMongolia,   TMongolia,     s_kPlain },
    { 977,  8, 11, 10, I00,         T0,            s_kPlain },
    { 979,  9,  9,  0, I00,         TNone,         s_kPlain },
    { 992,  9,  9,  9, IRussia,     TUzbekistan,   s_kPlain },
    { 993,  8,  8,  8, IRussia,     TTurkmenistan, s_kPlain },
    { 994,  9,  9,  9, ILithuania,  T0,            s_kPlain },
    { 995,  9,  9,  9, ILithuania,  T0,            s_kPlain },
    { 996,  9, 10,  9, I00,         T0,            s_kPlain },
    { 998,  9,  9,  9, IRussia,     TUzbekistan,   s_kPlain },
} };

struct Region
{
    std::array<char, 2> m_name;
    quint16 m_code;
};

// Sorted by name.
constexpr std::array<Region, 249> s_kRegions = { {
    { { 'A', 'C' }, 247 }, { { 'A', 'D' }, 376 }, { { 'A', 'E' }, 971 }, { { 'A', 'F' },  93 }, { { 'A', 'G' },   1 },
    { { 'A', 'I' },   1 }, { { 'A', 'L' }, 355 }, { { 'A', 'M' }, 374 }, { { 'A', 'O' }, 244 }, { { 'A', 'Q' }, 672 },
    { { 'A', 'R' },  54 }, { { 'A', 'S' },   1 }, { { 'A', 'T' },  43 }, { { 'A', 'U' },  61 }, { { 'A', 'W' }, 297 },
    { { 'A', 'X' }, 358 }, { { 'A', 'Z' }, 994 }, { { 'B', 'A' }, 387 }, { { 'B', 'B' },   1 }, { { 'B', 'D' }, 880 },
    { { 'B', 'E' },  32 }, { { 'B', 'F' }, 226 }, { { 'B', 'G' }, 359 }, { { 'B', 'H' }, 973 }, { { 'B', 'I' }, 257 },
    { { 'B', 'J' }, 229 }, { { 'B', 'L' }, 590 }, { { 'B', 'M' },   1 }, { { 'B', 'N' }, 673 }, { { 'B', 'O' }, 591 },
    { { 'B', 'Q' }, 599 }, { { 'B', 'R' },  55 }, { { 'B', 'S' },   1 }, { { 'B', 'T' }, 975 }, { { 'B', 'W' }, 267 },
    { { 'B', 'Y' }, 375 }, { { 'B', 'Z' }, 501 }, { { 'C', 'A' },   1 }, { { 'C', 'C' },  61 }, { { 'C', 'D' }, 243 },
    { { 'C', 'F' }, 236 }, { { 'C', 'G' }, 242 }, { { 'C', 'H' },  41 }, { { 'C', 'I' }, 225 }, { { 'C', 'K' }, 682 },
    { { 'C', 'L' },  56 }, { { 'C', 'M' }, 237 }, { { 'C', 'N' },  86 }, { { 'C', 'O' },  57 }, { { 'C', 'R' }, 506 },
    { { 'C', 'U' },  53 }, { { 'C', 'V' }, 238 }, { { 'C', 'W' }, 599 }, { { 'C', 'X' },  61 }, { { 'C', 'Y' }, 357 },
    { { 'C', 'Z' }, 420 }, { { 'D', 'E' },  49 }, { { 'D', 'J' }, 253 }, { { 'D', 'K' },  45 }, { { 'D', 'M' },   1 },
    { { 'D', 'O' },   1 }, { { 'D', 'Z' }, 213 }, { { 'E', 'C' }, 593 }, { { 'E', 'E' }, 372 }, { { 'E', 'G' },  20 },
    { { 'E', 'H' }, 212 }, { { 'E', 'R' }, 291 }, { { 'E', 'S' },  34 }, { { 'E', 'T' }, 251 }, { { 'F', 'I' }, 358 },
    { { 'F', 'J' }, 679 }, { { 'F', 'K' }, 500 }, { { 'F', 'M' }, 691 }, { { 'F', 'O' }, 298 }, { { 'F', 'R' },  33 },
    { { 'G', 'A' }, 241 }, { { 'G', 'B' },  44 }, { { 'G', 'D' },   1 }, { { 'G', 'E' }, 995 }, { { 'G', 'F' }, 594 },
    { { 'G', 'G' },  44 }, { { 'G', 'H' }, 233 }, { { 'G', 'I' }, 350 }, { { 'G', 'L' }, 299 }, { { 'G', 'M' }, 220 },
    { { 'G', 'N' }, 224 }, { { 'G', 'P' }, 590 }, { { 'G', 'Q' }, 240 }, { { 'G', 'R' },  30 }, { { 'G', 'S' }, 500 },
    { { 'G', 'T' }, 502 }, { { 'G', 'U' },   1 }, { { 'G', 'W' }, 245 }, { { 'G', 'Y' }, 592 }, { { 'H', 'K' }, 852 },
    { { 'H', 'N' }, 504 }, { { 'H', 'R' }, 385 }, { { 'H', 'T' }, 509 }, { { 'H', 'U' },  36 }, { { 'I', 'D' },  62 },
    { { 'I', 'E' }, 353 }, { { 'I', 'L' }, 972 }, { { 'I', 'M' },  44 }, { { 'I', 'N' },  91 }, { { 'I', 'O' }, 246 },
    { { 'I', 'Q' }, 964 }, { { 'I', 'R' },  98 }, { { 'I', 'S' }, 354 }, { { 'I', 'T' },  39 }, { { 'J', 'E' },  44 },
    { { 'J', 'M' },   1 }, { { 'J', 'O' }, 962 }, { { 'J', 'P' },  81 }, { { 'K', 'E' }, 254 }, { { 'K', 'G' }, 996 },
    { { 'K', 'H' }, 855 }, { { 'K', 'I' }, 686 }, { { 'K', 'M' }, 269 }, { { 'K', 'N' },   1 }, { { 'K', 'P' }, 850 },
    { { 'K', 'R' },  82 }, { { 'K', 'W' }, 965 }, { { 'K', 'Y' },   1 }, { { 'K', 'Z' },   7 }, { { 'L', 'A' }, 856 },
    { { 'L', 'B' }, 961 }, { { 'L', 'C' },   1 }, { { 'L', 'I' }, 423 }, { { 'L', 'K' },  94 }, { { 'L', 'R' }, 231 },
    { { 'L', 'S' }, 266 }, { { 'L', 'T' }, 370 }, { { 'L', 'U' }, 352 }, { { 'L', 'V' }, 371 }, { { 'L', 'Y' }, 218 },
    { { 'M', 'A' }, 212 }, { { 'M', 'C' }, 377 }, { { 'M', 'D' }, 373 }, { { 'M', 'E' }, 382 }, { { 'M', 'F' }, 590 },
    { { 'M', 'G' }, 261 }, { { 'M', 'H' }, 692 }, { { 'M', 'K' }, 389 }, { { 'M', 'L' }, 223 }, { { 'M', 'M' },  95 },
    { { 'M', 'N' }, 976 }, { { 'M', 'O' }, 853 }, { { 'M', 'P' },   1 }, { { 'M', 'Q' }, 596 }, { { 'M', 'R' }, 222 },
    { { 'M', 'S' },   1 }, { { 'M', 'T' }, 356 }, { { 'M', 'U' }, 230 }, { { 'M', 'V' }, 960 }, { { 'M', 'W' }, 265 },
    { { 'M', 'X' },  52 }, { { 'M', 'Y' },  60 }, { { 'M', 'Z' }, 258 }, { { 'N', 'A' }, 264 }, { { 'N', 'C' }, 687 },
    { { 'N', 'E' }, 227 }, { { 'N', 'F' }, 672 }, { { 'N', 'G' }, 234 }, { { 'N', 'I' }, 505 }, { { 'N', 'L' },  31 },
    { { 'N', 'O' },  47 }, { { 'N', 'P' }, 977 }, { { 'N', 'R' }, 674 }, { { 'N', 'U' }, 683 }, { { 'N', 'Z' },  64 },
    { { 'O', 'M' }, 968 }, { { 'P', 'A' }, 507 }, { { 'P', 'E' },  51 }, { { 'P', 'F' }, 689 }, { { 'P', 'G' }, 675 },
    { { 'P', 'H' },  63 }, { { 'P', 'K' },  92 }, { { 'P', 'L' },  48 }, { { 'P', 'M' }, 508 }, { { 'P', 'N' },  64 },
    { { 'P', 'R' },   1 }, { { 'P', 'S' }, 970 }, { { 'P', 'T' }, 351 }, { { 'P', 'W' }, 680 }, { { 'P', 'Y' }, 595 },
    { { 'Q', 'A' }, 974 }, { { 'R', 'E' }, 262 }, { { 'R', 'O' },  40 }, { { 'R', 'S' }, 381 }, { { 'R', 'U' },   7 },
    { { 'R', 'W' }, 250 }, { { 'S', 'A' }, 966 }, { { 'S', 'B' }, 677 }, { { 'S', 'C' }, 248 }, { { 'S', 'D' }, 249 },
    { { 'S', 'E' },  46 }, { { 'S', 'G' },  65 }, { { 'S', 'H' }, 290 }, { { 'S', 'I' }, 386 }, { { 'S', 'J' },  47 },
    { { 'S', 'K' }, 421 }, { { 'S', 'L' }, 232 }, { { 'S', 'M' }, 378 }, { { 'S', 'N' }, 221 }, { { 'S', 'O' }, 252 },
    { { 'S', 'R' }, 597 }, { { 'S', 'S' }, 211 }, { { 'S', 'T' }, 239 }, { { 'S', 'V' }, 503 }, { { 'S', 'X' },   1 },
    { { 'S', 'Y' }, 963 }, { { 'S', 'Z' }, 268 }, { { 'T', 'A' }, 290 }, { { 'T', 'C' },   1 }, { { 'T', 'D' }, 235 },
    { { 'T', 'F' }, 262 }, { { 'T', 'G' }, 228 }, { { 'T', 'H' },  66 }, { { 'T', 'J' }, 992 }, { { 'T', 'K' }, 690 },
    { { 'T', 'L' }, 670 }, { { 'T', 'M' }, 993 }, { { 'T', 'N' }, 216 }, { { 'T', 'O' }, 676 }, { { 'T', 'R' },  90 },
    { { 'T', 'T' },   1 }, { { 'T', 'V' }, 688 }, { { 'T', 'W' }, 886 }, { { 'T', 'Z' }, 255 }, { { 'U', 'A' }, 380 },
    { { 'U', 'G' }, 256 }, { { 'U', 'S' },   1 }, { { 'U', 'Y' }, 598 }, { { 'U', 'Z' }, 998 }, { { 'V', 'A' },  39 },
    { { 'V', 'C' },   1 }, { { 'V', 'E' },  58 }, { { 'V', 'G' },   1 }, { { 'V', 'I' },   1 }, { { 'V', 'N' },  84 },
    { { 'V', 'U' }, 678 }, { { 'W', 'F' }, 681 }, { { 'W', 'S' }, 685 }, { { 'X', 'K' }, 383 }, { { 'Y', 'E' }, 967 },
    { { 'Y', 'T' }, 262 }, { { 'Z', 'A' },  27 }, { { 'Z', 'M' }, 260 }, { { 'Z', 'W' }, 263 },
} };

struct Area
{
    std::array<char, 2> m_region;
    uchar m_localSize;
    quint16 m_code;
};

// The regions with one area code that may be left out within them.
constexpr std::array<Area, 23> s_kAreas = { {
    { { 'A', 'G' }, 7, 268 },  { { 'A', 'I' }, 7, 264 },  { { 'A', 'S' }, 7, 684 },  { { 'B', 'B' }, 7, 246 },
    { { 'B', 'M' }, 7, 441 },  { { 'B', 'S' }, 7, 242 },  { { 'D', 'M' }, 7, 767 },  { { 'G', 'D' }, 7, 473 },
    { { 'G', 'G' }, 6, 1481 }, { { 'G', 'U' }, 7, 671 },  { { 'I', 'M' }, 6, 1624 }, { { 'J', 'E' }, 6, 1534 },
    { { 'K', 'N' }, 7, 869 },  { { 'K', 'Y' }, 7, 345 },  { { 'L', 'C' }, 7, 758 },  { { 'M', 'P' }, 7, 670 },
    { { 'M', 'S' }, 7, 664 },  { { 'S', 'X' }, 7, 721 },  { { 'T', 'C' }, 7, 649 },
    { { 'T', 'T' }, 7, 868 },  { { 'V', 'C' }, 7, 784 },  { { 'V', 'G' }, 7, 284 },  { { 'V', 'I' }, 7, 340 },
} };
// clang-format on

constexpr uchar s_kNoCode = 255;
static_assert( s_kCodes.size() < s_kNoCode );
static_assert( s_kCodes.back().m_code != 0 && s_kRegions.back().m_code != 0 && s_kAreas.back().m_code != 0,
               "The tables have no empty rows" );

constexpr int s_kThreeDigits = 1000;
using CodeIndex = std::array<uchar, s_kThreeDigits>;

/// \return for three digits: the index of the code that they begin with.
constexpr CodeIndex IndexOfCodes()
{
    CodeIndex index{};
    for ( uchar& code : index )
        code = s_kNoCode;
    for ( size_t code = 0; code < s_kCodes.size(); ++code )
    {
        const size_t digits = s_kCodes[code].m_code;
        const size_t width = digits < 10 ? 100 : digits < 100 ? 10 : 1;
        for ( size_t rest = 0; rest < width; ++rest )
            index[digits * width + rest] = static_cast<uchar>( code );
    }
    return index;
}

constexpr CodeIndex s_kIndexOfCodes = IndexOfCodes();

bool IsInternational( std::string_view a_digits )
{
    const CallingCode* const code = CallingCodeOf( a_digits );
    return code != nullptr && code->IsLength( WithoutTrunkPrefix( *code, a_digits.substr( code->Size() ) ).size() );
}

int KeyOf( const std::array<char, 2>& a_name )
{
    return a_name[0] << CHAR_BIT | a_name[1];
}

/// \return the key of two ASCII letters in any letter case; 0 for other texts.
int KeyOf( QStringView a_region )
{
    if ( a_region.size() != 2 || a_region[0].unicode() > 'z' || a_region[1].unicode() > 'z' )
        return 0;
    return KeyOf( { a_region[0].toUpper().toLatin1(), a_region[1].toUpper().toLatin1() } );
}

void SetArea( Home& a_home, int a_region )
{
    const auto* const area = std::find_if( s_kAreas.begin(), s_kAreas.end(),
                                           [&]( const Area& a_row ) { return KeyOf( a_row.m_region ) == a_region; } );
    if ( area == s_kAreas.end() )
        return;
    a_home.m_area = area->m_code;
    a_home.m_localSize = area->m_localSize;
}

} // namespace

const CallingCode* CallingCodeOf( std::string_view a_digits )
{
    constexpr size_t s_kSize = 3;
    constexpr uint s_kBase = 10;
    uint place = 0;
    for ( size_t digit = 0; digit < s_kSize; ++digit )
    {
        const uint value = digit < a_digits.size() ? static_cast<uint>( a_digits[digit] - '0' ) : 0;
        if ( value >= s_kBase )
            return nullptr;
        place = place * s_kBase + value;
    }
    const uchar code = s_kIndexOfCodes[place];
    return code == s_kNoCode || s_kCodes[code].Size() > a_digits.size() ? nullptr : &s_kCodes[code];
}

Home HomeOf( QStringView a_region )
{
    Home home;
    const int key = KeyOf( a_region );
    const auto* const region =
        std::lower_bound( s_kRegions.begin(), s_kRegions.end(), key,
                          []( const Region& a_row, int a_key ) { return KeyOf( a_row.m_name ) < a_key; } );
    if ( region == s_kRegions.end() || KeyOf( region->m_name ) != key )
        return home;
    home.m_code = std::lower_bound( s_kCodes.begin(), s_kCodes.end(), region->m_code,
                                    []( const CallingCode& a_row, int a_code ) { return a_row.m_code < a_code; } );
    SetArea( home, key );
    return home;
}

std::string TrunkPrefixOf( const CallingCode& a_code )
{
    if ( !a_code.HasTrunkPrefix() )
        return std::string();
    const Prefix& first = *s_kTrunkLists.First( a_code.m_trunk );
    const std::string digits( first.m_digits.data(), first.m_size );
    return digits.substr( 0, digits.find( 'n' ) );
}

std::string_view WithoutTrunkPrefix( const CallingCode& a_code, std::string_view a_digits )
{
    const Prefix* prefix = s_kTrunkLists.First( a_code.m_trunk );
    for ( ; prefix != nullptr; prefix = prefix->Next() )
    {
        if ( prefix->StartsWith( a_digits ) && prefix->IsBefore( a_digits.substr( prefix->m_size ) ) )
            return a_digits.substr( prefix->m_size );
    }
    return a_digits;
}

std::string_view WithoutInternationalPrefix( const CallingCode& a_home, std::string_view a_digits )
{
    const Prefix* prefix = s_kInternationalLists.First( a_home.m_international );
    for ( ; prefix != nullptr; prefix = prefix->Next() )
    {
        if ( prefix->StartsWith( a_digits ) && IsInternational( a_digits.substr( prefix->m_size ) ) )
            return a_digits.substr( prefix->m_size );
    }
    return {};
}

size_t CallingCodesBytes()
{
    return sizeof( s_kTrunkLists ) + sizeof( s_kInternationalLists ) + sizeof( s_kCodes ) + sizeof( s_kRegions ) +
           sizeof( s_kAreas ) + sizeof( s_kIndexOfCodes );
}

} // namespace PimManager::PhoneBook
