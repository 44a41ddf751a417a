#include "Charsets/Languages.h"

// The tables are common knowledge about the languages, rounded to few groups: how often letters occur in text, the
// usual surnames, the characters and syllables of given names, and the words of addresses and companies. They were
// written down from general knowledge; no list of names was counted.

namespace PimManager::Tools
{

namespace
{

using Languages = std::vector<Language>;

// The usual default needs no evidence against the others, and a rare character set much of it.
constexpr int s_kUsual = 0;
constexpr int s_kKnown = 30;
constexpr int s_kRare = 100;

constexpr std::u16string_view s_kSimplified =
    u"王李张刘陈杨黄赵吴周徐孙马朱胡郭何高林罗郑梁谢宋唐许韩冯邓曹彭曾肖田董袁潘于蒋蔡余杜叶程苏魏吕丁任沈姚卢"
    u"姜崔钟谭陆汪范金石廖贾夏韦付方白邹孟熊秦邱江尹薛闫段雷侯龙史陶黎贺顾毛郝龚邵万钱严覃武戴莫孔向汤伟芳娜秀"
    u"英敏静丽强磊军洋勇艳杰娟涛明超兰霞平刚桂文辉玲红建国华玉梅春志海晓东小云飞鹏宇浩然子涵欣怡雨泽梓轩一诺思"
    u"远嘉佳俊美雪婷慧燕凤琴珍凯波斌健峰永新生成光德福荣贵富祥瑞庆宏利民家安宁乐天清木水火土山川河阳月星辰中正"
    u"义仁礼智信忠良学才立振兴世昌胜全保定长青松柏竹菊花香莲琳琪瑶萍莉莎倩颖悦心爱珊珠宝翠鑫博雅昊睿晨洁莹亮冬"
    u"彬坤旭毅省市区县镇村路街道号楼室层单元大厦北京上广州深圳南重都西岛济尔滨昆浙湖徽陕四内蒙古疆有限公司集团"
    u"科技术息电商贸易实业发展股份银行医院校究所部门经理总监主师同事朋友客户人爸妈办手机话地址传真邮编备注日工"
    u"作联系先女士姐网络软件设计管服务台品食材料汽车房产物投资咨询械化装饰告教育培训旅游酒店餐厅场的是不在我他"
    u"这和了们来到时个下二三五六七八九十百";

constexpr std::u16string_view s_kTraditional =
    u"陳林黃張李王吳劉蔡楊許鄭謝洪郭邱曾廖賴徐周葉蘇莊呂江何蕭羅高潘簡朱鍾游彭詹胡施沈余盧梁趙顏柯翁魏孫戴范方"
    u"宋鄧杜傅侯曹薛丁卓阮馬董溫唐藍石蔣田康鄒白涂尤巫韓龔嚴袁金童陸夏邵錢伍倪于譚駱熊任甘秦顧毛章史官萬俞雷粘"
    u"饒凌崔尹孔歐關甄麥霍區志明俊傑建宏雅婷淑芬美玲麗惠怡君家豪冠宇宗翰佳穎欣筱雯慧文雄國華秀英玉珍春香秋月素"
    u"進財發榮貴福祥德義仁信忠孝和平安寧健承恩柏睿詩涵品妤宜芳芸菁萱庭心瑜琪琳珊蓉蓮蘭花梅桂竹菊雪雲霞鳳燕鶯龍"
    u"虎山川海洋河水木火土天地正中成功勝利強偉大勇猛剛毅哲學書智賢良才能世昌昇東西南北源泉長永遠青清光輝耀銘鈞"
    u"鑫鴻彥廷威凱翔軒皓子育弘政達仲伯佩婉如真妮娟貞靜儀嘉思維倫禎祐佑益台新桃園縣鄉鎮村里路街段巷弄號樓室之港"
    u"九灣仔銅鑼角尖沙咀荃元朗屯門將軍澳道廈廣場座碼市有限公司股份企業集團科技電資訊工程設實貿易商行銀醫院診所"
    u"校小初等級會社基事務律師計部經理總監主專員老先生姐女士同朋友客戶人爸媽哥弟妹阿姨叔辦手機話傳址郵件備註日"
    u"作聯絡繫網軟體管服食餐廳旅飯店的是不在我他這了們來到時個上下一二三四五六七八十百";

constexpr std::u16string_view s_kJapanese =
    u"佐藤鈴木高橋田中伊渡辺山本村小林加吉松井斎清水崎森池阿部石川前岡長谷近後坂遠青西福太三浦金原野竹内上和島"
    u"酒工横宮大今河武服平菊久保柴永安増岩尾千葉桜丸杉樋口丹羽関根荒星馬場栗飯塚牧矢秋土屋堀黒新市神古熊豊早須"
    u"富東荻庄司北南嶋浜倉瀬沢成宇下広子美恵智明裕幸真由香奈優菜結愛陽葵凛花咲莉紗沙織里佳代春夏冬雅義弘博浩健"
    u"一郎二翔輝悠斗蓮颯樹拓也達哉誠隆正孝文雄勇勝茂実進剛学修直純俊介祐彦昭光貴之則治男夫信行徳英敏忠次四五六"
    u"敬洋憲典生良康克海空月心音彩楓希望未来礼玲萌栄節静京悦律綾朋知寛尚卓都道府県区町丁目番地号室階阪名戸札幌"
    u"仙台埼玉兵庫岐栃城群形手賀滋歌鳥取媛分児縄梨重通条駅館株式会社有限商事業製作所銀病院校電気機械産建設研究"
    u"課係担当営開発務総経理店主任専締役先友族自宅勤携帯話職祖父母兄弟姉妹息娘連絡誕日年火時様君組合協議団法人"
    u"技術情報運輸食品薬印刷出版不動交料園育幼稚徒同級旧姓";

constexpr std::u16string_view s_kKorean =
    u"김이박최정강조윤장임한오서신권황안송류전홍고문양손배백허유남심노하곽성차주우구나민진지엄채원천방공현함변"
    u"염여추도소석선설마길연위표명기반라왕금옥육인맹제모탁국어은편용예봉경사부독준수영희철호숙미동상재태훈혜아"
    u"리보승혁환창규병식종광복순자란춘범근일학만덕빈찬솔별빛슬률율령림람름담결겸건관교균극능단달대두래례로록루"
    u"린묵무벼비삼새샘세시숭실쌍애약언열엽완웅월응익잎초충층치칠택평필향형화회후휘흥울산특군읍면번을역앞파트빌"
    u"딩타워업행중등센터팀총개획법친가족생누니빠폰메님객처팩스음점카페당는를의에와과다요습있했및것할그레코크클"
    u"럽";

// German fits equally well in most of the one-byte character sets, which have its letters at the same places.
Languages WesternEuropean()
{
    return {
        Language( Script::Latin, u"/üä/öß//é" ),           // German
        Language( Script::Latin, u"/é/àè/ê/çûùâî/ôœ/ïë" ), // French
        Language( Script::Latin, u"/óí/áéñ/ú//ü" ),        // Spanish
        Language( Script::Latin, u"/ã/çéêóá/íú/âàôõ" ),    // Portuguese
        Language( Script::Latin, u"/à/èòù/ìé" ),           // Italian
        Language( Script::Latin, u"//àóèéíò/çú/üï" ),      // Catalan
        Language( Script::Latin, u"/åøæ///é/öäü" ),        // Danish, Norwegian
        Language( Script::Latin, u"/äöå///é/ü" ),          // Swedish, Finnish
        Language( Script::Latin, u"/ð/áíþ/óæöéú/ý" ),      // Icelandic
        Language( Script::Latin, u"/ë/éïç/öüè/ê" ),        // Dutch, Albanian
    };
}

Languages CentralEuropean()
{
    return {
        Language( Script::Latin, u"/ł/óęśćąż/ń//ź" ),          // Polish
        Language( Script::Latin, u"//íáěý/éřžčšů//úň/ďóť" ),   // Czech
        Language( Script::Latin, u"//áíčýšž/éúťľ/ňôď/óä/ĺŕ" ), // Slovak
        Language( Script::Latin, u"/áé//óöőíü/úű" ),           // Hungarian
        Language( Script::Latin, u"/ă/şîţâ" ),                 // Romanian
        Language( Script::Latin, u"/čćš/ž/đ" ),                // Croatian, Slovene, Serbian
        Language( Script::Latin, u"/üä/öß//é" ),               // German
        Language( Script::Latin, u"/é///çâî/ô/ë" ),            // French
    };
}

Languages Turkish()
{
    return { Language( Script::Latin, u"/ı/üşçğ/öİ//â/îû" ) };
}

// The accents of tones are characters of their own in windows-1258.
Languages Vietnamese()
{
    return { Language( Script::Latin, u"\u0300\u0301/\u0323đưêô\u0309/ăâơ\u0303//áàéèíóòúùý" ) };
}

Languages Baltic()
{
    return {
        Language( Script::Latin, u"//ėšųžįą/čū/ę" ),    // Lithuanian
        Language( Script::Latin, u"/ā/īēš/ūņļ/žķ/ģč" ), // Latvian
        Language( Script::Latin, u"/äõ/üö///šž" ),      // Estonian
    };
}

Languages Cyrillic()
{
    return {
        Language( Script::Alphabet, u"оаеин/тсрвлк/мдпуяыьгзбч/йхжшюцщэф/ёъ" ), // Russian
        Language( Script::Alphabet, u"оаиніе/тврксл/удмпязьгбч/йхїцжшюєщф/ґ" ), // Ukrainian
        Language( Script::Alphabet, u"аоиен/трвсл/дкмпуъзгб/яйчжцщшхфью" ),     // Bulgarian
        Language( Script::Alphabet, u"аоиен/рсјтвк/лудмпзг/њљћчбцшжђхфџ" ),     // Serbian
    };
}

Languages Greek()
{
    return { Language( Script::Alphabet, u"αοιετσνς/ηυρκπμλίό/άγέδήύωχθ/φβξζώψ/ϊϋΐΰ" ) };
}

Languages Hebrew()
{
    return { Language( Script::Alphabet, u"יוהלארמתנב/שדקםחעצפג/כטזסןךףץ" ) };
}

Languages Arabic()
{
    return { Language( Script::Alphabet, u"اليمنر/تبعدهو/حسكقفجصط/شخضثزغظذءئىةأإؤآ" ) };
}

Languages Thai()
{
    return { Language( Script::Alphabet, u"านรกอ/เงมยวลสปทตีัดิ์่้/ชคะพบขจแไหุูำใโถณธศ็ซภฐฉผญึื/ๆฝฎฏฑฒฟฮฤ" ) };
}

Languages Japanese()
{
    return { Language( Script::Japanese, s_kJapanese ) };
}

Languages Simplified()
{
    return { Language( Script::EastAsian, s_kSimplified ) };
}

Languages Traditional()
{
    return { Language( Script::EastAsian, s_kTraditional ) };
}

Languages Korean()
{
    return { Language( Script::EastAsian, s_kKorean ) };
}

UsedCharset Used( const char* a_name, int a_rarity, const Languages& a_languages )
{
    return { Contacts::PimContactCharset::Of( a_name ), a_rarity, a_languages };
}

} // namespace

const std::vector<UsedCharset>& UsedCharsets()
{
    static const std::vector<UsedCharset> s_charsets = {
        Used( "windows-1252", s_kUsual, WesternEuropean() ),
        Used( "ISO-8859-2", s_kKnown, CentralEuropean() ),
        Used( "windows-1250", s_kKnown, CentralEuropean() ),
        Used( "windows-1251", s_kKnown, Cyrillic() ),
        Used( "KOI8-R", s_kKnown, Cyrillic() ),
        Used( "Shift_JIS", s_kKnown, Japanese() ),
        Used( "GB18030", s_kKnown, Simplified() ),
        Used( "Big5", s_kKnown, Traditional() ),
        Used( "EUC-KR", s_kKnown, Korean() ),
        Used( "EUC-JP", s_kRare, Japanese() ),
        Used( "windows-1253", s_kRare, Greek() ),
        Used( "ISO-8859-7", s_kRare, Greek() ),
        Used( "windows-1254", s_kRare, Turkish() ),
        Used( "windows-1255", s_kRare, Hebrew() ),
        Used( "windows-1256", s_kRare, Arabic() ),
        Used( "ISO-8859-6", s_kRare, Arabic() ),
        Used( "windows-1257", s_kRare, Baltic() ),
        Used( "ISO-8859-13", s_kRare, Baltic() ),
        Used( "windows-1258", s_kRare, Vietnamese() ),
        Used( "windows-874", s_kRare, Thai() ),
        Used( "KOI8-U", s_kRare, Cyrillic() ),
        Used( "IBM866", s_kRare, Cyrillic() ),
        Used( "ISO-8859-5", s_kRare, Cyrillic() ),
        Used( "x-mac-cyrillic", s_kRare, Cyrillic() ),
        Used( "IBM850", s_kRare, WesternEuropean() ),
        Used( "IBM852", s_kRare, CentralEuropean() ),
        Used( "macintosh", s_kRare, WesternEuropean() ),
    };
    return s_charsets;
}

} // namespace PimManager::Tools
