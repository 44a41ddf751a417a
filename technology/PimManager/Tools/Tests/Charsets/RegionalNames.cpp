#include "Charsets/RegionalNames.h"

#include <QString>

namespace PimManager::Tools
{

namespace
{

// Of a text with bars between the words.
QStringList Words( const char* a_words )
{
    return QString::fromUtf8( a_words ).split( QLatin1Char( '|' ) );
}

} // namespace

std::vector<RegionalNames> RussianNames()
{
    return {
        {
            "Russian",
            false,
            Words(
                "Абрамов|Авдеева|Агапов|Аксёнов|Алексеенко|Антипина|Артамонов|Балашов|Барсукова|Бахметьев|Белозёров|"
                "Бирюкова|Бочкарёв|Бурцева|Вавилов|Вершинина|Воейков|Вьюгина|Гаврилов|Глазунова|Голубцов|Горшкова|"
                "Гусаров|Давыдов|Дёмина|Долгополов|Дьяконова|Евстигнеев|Ершова|Жаров|Жемчужников|Забелина|Зайцев|"
                "Звягинцева|Зимин|Зуева|Игнатьев|Исаева|Кабанов|Калашникова|Карпов|Кирсанова|Клюев|Козырева|Колесников|"
                "Комарова|Корнилов|Кочеткова|Кривцов|Кудряшова|Куприянов|Лаптева|Лебедев|Лосева|Лукьянов|Лыткина|"
                "Майоров|Макеева|Мартынов|Медведева|Мещеряков|Минаева|Мухин|Наумова|Нефёдов|Носова|Овчинников|Одинцова|"
                "Осипов|Панкратова|Пастухов|Пахомова|Перфильев|Плотникова|Полежаев|Прохорова|Пущин|Рожкова|Рубцов|"
                "Рыжова|Савельев|Сазонова|Селиванов|Сизова|Скворцов|Соболева|Спиридонов|Субботина|Сухарев|Тарасова|"
                "Терехов|Третьякова|Тюрин|Уварова|Устинов|Фадеева|Филатов|Фомичёва|Харитонов|Хохлова|Царёв|Цветкова|"
                "Чернышёв|Чижова|Шаповалов|Шестакова|Широков|Щеглова|Щербаков|Эйхвальд|Юдина|Юшков|Яблокова|Якушев" ),
            Words(
                "Агафья|Аделина|Алевтина|Альберт|Анатолий|Анфиса|Аркадий|Арсений|Богдан|Борис|Вадим|Валентин|Варвара|"
                "Василиса|Вениамин|Виталий|Владислав|Всеволод|Вячеслав|Галина|Геннадий|Герман|Глафира|Глеб|Григорий|"
                "Дарья|Демьян|Евгения|Егор|Елизавета|Емельян|Жанна|Захар|Зинаида|Зоя|Игорь|Илларион|Инна|Иосиф|"
                "Капитолина|"
                "Кирилл|Клавдия|Кузьма|Лариса|Лев|Лидия|Любовь|Майя|Макар|Маргарита|Марфа|Матвей|Мирослава|Мстислав|"
                "Надежда|Назар|Ника|Нина|Оксана|Олеся|Остап|Павел|Платон|Полина|Прасковья|Прохор|Раиса|Регина|Родион|"
                "Роман|Савва|Святослав|Серафима|Снежана|Степан|Таисия|Тамара|Тимофей|Тихон|Ульяна|Устинья|Фаина|Фёдор|"
                "Фрол|Христина|Эдуард|Элеонора|Эмма|Юлиан|Юлия|Юрий|Яков|Яна|Ярослав" ),
            Words(
                "Архангельск|Астрахань|Барнаул|Белгород|Великий Новгород|Владикавказ|Волгоград|Воронеж|Екатеринбург|"
                "Иркутск|Калуга|Кемерово|Кострома|Краснодар|Курган|Липецк|Магадан|Мурманск|Нижний Новгород|Омск|Орёл|"
                "Оренбург|Пенза|Пермь|Псков|Ростов-на-Дону|Рязань|Самара|Саратов|Смоленск|Сочи|Тверь|Томск|Тула|Тюмень|"
                "Уфа|Хабаровск|Чебоксары|Челябинск|Якутск|Ярославль|Щёлково|Подольск|Химки" ),
            Words( "ул. Гагарина|ул. Чехова|просп. Мира|Набережная ул.|ул. Вокзальная|пер. Школьный|ул. "
                   "Лермонтова|бульвар Цветной|"
                   "ул. Заводская|ул. Энергетиков|Октябрьская пл.|ул. Юбилейная|ул. Луговая|шоссе Энтузиастов|ул. "
                   "Жуковского|"
                   "ул. Речная|проезд Южный|ул. Фрунзе|Тверской б-р|ул. Грибоедова" ),
            Words( "Хлебозавод|Стройсервис|Торговый дом Ласточка|Аптека на углу|Автошкола Вираж|Банк "
                   "Содружество|Стоматология|"
                   "Юридическая контора|Завод металлоконструкций|Типография|Издательство Слово|Фабрика "
                   "игрушек|Ветеринарная клиника|"
                   "Мебельный цех|Охранное агентство|Электросети|Турфирма Парус|Детский сад|Музей|Рыбный рынок" ),
            Words( "Позвонить вечером|Коллега жены|Сосед по даче|Не работает по пятницам|Сантехник|Врач|Тётя|День "
                   "рождения в июле|"
                   "Мастер по ремонту|Должен деньги|Учитель музыки|Скидка десять процентов|Говорит по-английски|Друг "
                   "детства|"
                   "Бухгалтер" ),
        },
    };
}

std::vector<RegionalNames> JapaneseNames()
{
    return {
        {
            "Japanese",
            true,
            Words(
                "相沢|青柳|赤羽|秋元|浅野|芦田|東|安達|安倍|新井|飯島|五十嵐|石塚|板垣|市川|稲葉|今泉|岩崎|上原|植田|"
                "臼井|江口|榎本|大島|太田|大塚|岡崎|小川|奥村|小野寺|甲斐|笠原|片桐|勝又|金子|神谷|川口|川端|菊池|"
                "岸本|北川|木下|草野|工藤|久保田|黒木|桑原|小泉|越智|児玉|後藤|小松|坂本|桜井|笹川|沢田|塩谷|篠原|"
                "柴田|島崎|下村|白石|杉本|須田|瀬戸|高木|滝沢|武田|竹中|立花|田辺|谷口|千田|塚本|土屋|堤|手塚|寺田|"
                "徳永|富田|豊田|内藤|永井|中島|長尾|成田|西川|西村|丹羽|野口|野村|萩原|橋本|服部|花田|浜田|林田|原田|"
                "東山|樋口|平野|福島|藤本|藤田|船橋|古川|細川|堀内|本田|牧野|増田|松尾|丸山|三木|水野|宮崎|宮本|村上|"
                "望月|森田|門脇|八木|安田|柳沢|矢野|山口|山崎|結城|横井|吉村|米倉|鷲尾|和田|渡部" ),
            Words(
                "愛子|葵|明菜|朝美|彩乃|郁夫|泉|一樹|伊織|栄作|絵里|修|和也|一馬|和枝|克也|加奈子|香織|寛太|喜一|"
                "京子|清|邦彦|啓介|圭吾|健一|健太|剣|弘樹|光一|幸司|小百合|早紀|聡|里香|茂樹|静香|忍|隼人|俊一|駿|"
                "淳子|翔太|真一|慎吾|鈴|澄子|誠一|清太郎|奏|崇|貴志|孝之|拓海|武|達郎|珠美|千尋|千鶴|司|勉|輝夫|徹|"
                "俊夫|智子|直樹|菜々子|夏希|信子|典子|遥|春樹|久美子|英樹|瞳|大輔|大地|響|浩二|文香|芙美|真紀|正樹|"
                "昌幸|雅美|真理子|美咲|瑞希|美智子|光男|実|美穂|恵美|桃子|靖|康子|泰造|雄一|悠真|裕子|由紀|陽子|義雄|"
                "良太|莉子|涼介|類|玲子|若菜|亘|ひかり|さやか|あゆみ|なつみ|ミチル|ルミ" ),
            Words( "札幌市中央区|函館市|旭川市|青森市|盛岡市|秋田市|山形市|郡山市|水戸市|宇都宮市|前橋市|川越市|船橋市|"
                   "新宿区|渋谷区|世田谷区|品川区|練馬区|八王子市|横須賀市|鎌倉市|甲府市|松本市|富山市|金沢市|福井市|"
                   "浜松市|豊橋市|四日市市|大津市|宇治市|堺市|枚方市|姫路市|和歌山市|鳥取市|松江市|倉敷市|呉市|下関市|"
                   "徳島市|高松市|松山市|高知市|北九州市|佐世保市|熊本市|別府市|鹿児島市|那覇市" ),
            Words( "本町一丁目|緑ヶ丘二丁目|桜台三丁目|若葉町|錦町四丁目|栄町|旭町五丁目|寿町|曙町|泉台|大手町|上野毛|"
                   "湯島|霞が関|六本木|桃山台|南風原|松ヶ枝町|港南|駅前通り" ),
            Words(
                "山田酒店|東洋鋼管|あおば薬局|ひまわり保育園|若林歯科医院|竹屋旅館|光陽印刷|北斗運輸倉庫|さくら美容室|"
                "日の出水産|中村鉄工所|みどり幼稚園|丸福食堂|関東硝子|新栄不動産|西部ガス|長崎屋菓子舗|協和紙業|"
                "富士見自動車|"
                "大黒寿司" ),
            Words( "高校の同級生|妻の実家|夜は電話しないこと|釣り仲間|隣の家|誕生日は七月|担任の先生|英語が話せる|"
                   "水曜定休|"
                   "町内会長|兄の友人|会議は月曜|駐車場あり|猫を預かる|お世話になった方" ),
        },
    };
}

std::vector<RegionalNames> SimplifiedChineseNames()
{
    return {
        {
            "Chinese",
            true,
            Words( "白|鲍|毕|卞|蔡|曹|岑|柴|常|车|陈|成|程|池|储|褚|崔|戴|邓|狄|丁|董|窦|杜|段|樊|范|方|房|费|丰|冯|"
                   "符|傅|甘|高|葛|耿|龚|古|顾|关|管|郭|韩|杭|郝|何|贺|洪|侯|胡|华|黄|霍|嵇|姬|吉|纪|季|贾|简|江|焦|"
                   "金|靳|荆|康|柯|孔|寇|匡|赖|兰|郎|乐|雷|黎|李|梁|廖|林|凌|刘|柳|娄|卢|鲁|陆|吕|罗|骆|马|麦|毛|梅|"
                   "孟|苗|闵|莫|牟|穆|倪|聂|宁|欧阳|潘|庞|裴|彭|蒲|戚|齐|祁|钱|秦|邱|屈|瞿|冉|饶|任|阮|芮|沙|单|商|尚|"
                   "邵|佘|申|沈|盛|施|石|司马|宋|苏|隋|孙|谭|汤|唐|陶|滕|田|童|涂|万|汪|王|韦|卫|温|文|翁|乌|吴|伍|夏|"
                   "向|项|萧|谢|辛|邢|熊|徐|许|薛|严|阎|颜|杨|姚|叶|易|殷|应|尤|于|余|俞|虞|袁|岳|臧|曾|翟|詹|张|章|"
                   "赵|甄|郑|钟|周|朱|祝|庄|卓|邹|左" ),
            Words( "安琪|白露|宝强|碧云|秉文|博文|灿|畅|超群|诚|楚楚|传志|春晖|丹|道明|德胜|东升|尔东|凡|芬|逢春|福来|"
                   "冠中|广义|桂英|国栋|海燕|寒梅|汉卿|浩|和平|鹤鸣|红霞|鸿飞|焕章|惠民|继先|佳怡|坚|建军|江涛|洁|金凤|"
                   "锦绣|晶晶|静怡|俊杰|开元|可欣|坤|兰芝|立群|丽华|良玉|林森|玲玲|露|鲁平|满仓|茂林|美娟|梦瑶|妙|敏捷|"
                   "明珠|乃文|楠|培根|佩兰|鹏程|启明|倩|巧云|勤|庆丰|秋菊|全友|荣华|如意|锐|瑞雪|若兰|善良|少华|诗涵|"
                   "世杰|淑贞|舒畅|双喜|松涛|素芬|泰|天佑|廷玉|彤|万里|唯一|卫东|文君|雯|武|西林|贤|翔|小满|晓峰|新宇|"
                   "秀兰|旭东|雪琴|雅静|延年|艳红|耀祖|一鸣|怡然|义|逸凡|英豪|莹莹|永康|友谅|雨桐|玉兰|毓秀|远航|悦|"
                   "云鹤|泽民|占魁|昭|珍妮|振华|志刚|智慧|仲谋|竹青|卓然|子轩|紫薇" ),
            Words( "上海市浦东新区|北京市朝阳区|广州市天河区|深圳市南山区|杭州市余杭区|苏州市吴中区|成都市武侯区|"
                   "武汉市江岸区|"
                   "西安市雁塔区|重庆市渝北区|天津市河西区|南京市鼓楼区|宁波市海曙区|无锡市滨湖区|厦门市思明区|"
                   "合肥市蜀山区|"
                   "太原市迎泽区|石家庄市桥西区|长春市朝阳区|哈尔滨市道里区|大连市甘井子区|烟台市芝罘区|洛阳市涧西区|"
                   "南昌市青山湖区|贵阳市云岩区|南宁市青秀区|海口市龙华区|兰州市城关区|银川市金凤区|西宁市城东区|"
                   "呼和浩特市|"
                   "乌鲁木齐市|拉萨市|温州市鹿城区|佛山市顺德区|东莞市虎门镇|珠海市香洲区|扬州市邗江区|镇江市|"
                   "绍兴市越城区" ),
            Words( "解放路|人民大街|中山北路|长征巷|团结胡同|延安西路|和平里|光明路|文化宫街|建设二路|胜利桥南|花园街|"
                   "滨河大道|学院路|青年路|工农街|友谊路|红旗渠路|环城东路|迎宾大道" ),
            Words(
                "永和豆浆店|天宇装饰公司|康复诊所|四海物流|新华书店|蓝天幼儿园|顺达修理厂|恒星灯具|兴隆粮油|龙腾广告社|"
                "金桥律师行|鼎盛地产|百灵钢琴行|老字号茶庄|诚信会计师事务所|绿野园林|宏图打印|丰收种子站|海鲜批发|"
                "第三小学" ),
            Words( "下午再打|孩子的班主任|同乡|欠款未还|修空调的|周末不上班|大学同窗|妻子的表妹|送水师傅|喜欢下棋|"
                   "见面再谈|"
                   "曾住隔壁|中介|会说粤语|已离职" ),
        },
    };
}

std::vector<RegionalNames> TraditionalChineseNames()
{
    return {
        {
            "Chinese",
            true,
            Words( "安|白|包|鮑|貝|畢|蔡|曹|岑|柴|常|陳|成|程|池|崔|戴|鄧|狄|丁|董|竇|杜|段|范|方|房|費|馮|符|傅|甘|"
                   "高|葛|龔|古|顧|關|管|郭|韓|郝|何|賀|洪|侯|胡|花|華|黃|霍|紀|季|賈|簡|江|姜|焦|金|康|柯|孔|賴|藍|"
                   "郎|樂|雷|黎|李|連|梁|廖|林|凌|劉|柳|龍|盧|魯|陸|呂|羅|駱|馬|麥|毛|梅|孟|苗|莫|穆|倪|聶|歐陽|潘|龐|"
                   "裴|彭|蒲|戚|齊|錢|秦|邱|屈|任|阮|沙|單|商|邵|佘|申|沈|盛|施|石|司徒|宋|蘇|孫|譚|湯|唐|陶|田|童|塗|"
                   "萬|汪|王|韋|衛|魏|溫|翁|巫|吳|伍|夏|向|項|蕭|謝|辛|邢|熊|徐|許|薛|嚴|閻|顏|楊|姚|葉|易|殷|尤|游|"
                   "于|余|俞|虞|袁|岳|曾|翟|詹|張|章|趙|甄|鄭|鍾|周|朱|祝|莊|卓|鄒|左" ),
            Words(
                "安琪|百合|寶珠|碧雲|秉勳|博文|采潔|昌明|辰希|澄|楚雄|春嬌|淳|翠屏|大為|丹鳳|德馨|鼎鈞|東昇|恩典|"
                "方正|飛鴻|逢甲|馥郁|貴枝|國棟|海倫|漢民|浩然|禾|鶴年|宏達|厚德|煥章|惠敏|慧娟|繼光|佳慧|建銘|江濤|"
                "潔如|金龍|錦輝|晶瑩|景行|靜宜|聚財|俊宏|開泰|可欣|寬裕|坤山|蘭英|立群|麗珠|良辰|琳達|玲瓏|隆盛|露西|"
                "茂松|美雲|夢蝶|敏雄|明珠|乃馨|念慈|培元|佩君|鵬飛|品蓉|啟賢|巧玲|勤樸|慶祥|秋菊|榮華|如玉|瑞麟|若瑄|"
                "森林|善美|少華|聖凱|詩婷|世杰|淑惠|舒涵|雙全|松齡|素貞|泰山|天賜|添財|廷宇|彤|婉君|惟中|文彬|武雄|"
                "錫銘|賢德|湘琴|曉薇|欣儀|新發|秀蘭|旭東|雪娥|雅筑|延平|艷紅|耀東|依林|怡萱|義雄|逸群|英九|盈盈|永慶|"
                "友誼|雨柔|玉蟬|育賢|毓芬|元培|月桃|允文|再興|澤民|昭榮|珍妮|振邦|志偉|智淵|仲麟|卓然|子晴|紫薇|宗憲" ),
            Words(
                "台北市大安區|台北市士林區|新北市板橋區|新北市三重區|桃園市中壢區|新竹市東區|苗栗縣頭份市|台中市西屯區|"
                "台中市豐原區|彰化縣員林市|南投縣埔里鎮|雲林縣斗六市|嘉義市西區|台南市永康區|高雄市三民區|高雄市鳳山區|"
                "屏東市|宜蘭縣羅東鎮|花蓮市|台東市|基隆市仁愛區|澎湖縣馬公市|金門縣金城鎮|九龍旺角|香港銅鑼灣|新界荃灣|"
                "沙田大圍|元朗天水圍|筲箕灣|油麻地|觀塘|北角|將軍澳|屯門|澳門路環|台北市萬華區|台北市內湖區|"
                "新北市淡水區|"
                "台中市大里區|高雄市左營區" ),
            Words(
                "忠孝東路四段|復興南路一段|民權西路|羅斯福路三段|仁愛街|中正路|和平東路|光華巷|文化二路|博愛路|成功街|"
                "自強路|彌敦道|軒尼詩道|英皇道|廣東道|太子道西|民族路|建國北路|三多四路" ),
            Words(
                "永和豆漿店|永康牛肉麵|長榮旅行社|台灣糖業|皇后冰果室|明德補習班|順發電腦|大同瓷器|金石堂書局|宏恩診所|"
                "聯合報社|鼎泰建材|恆春渡假村|欣欣客運|美而美早餐|遠東百貨|福臨門酒樓|寶島眼鏡|綠野園藝|義美麵包坊" ),
            Words( "晚上再打|孩子的導師|同鄉|尚欠尾款|修冷氣的|週末公休|大學同窗|太太的表妹|送瓦斯|愛釣魚|見面詳談|"
                   "曾住隔壁|"
                   "房屋仲介|會講客語|已離職" ),
        },
    };
}

std::vector<RegionalNames> KoreanNames()
{
    return {
        {
            "Korean",
            true,
            Words( "강|고|공|곽|구|국|권|금|기|길|김|나|남궁|남|노|단|도|류|마|맹|명|모|목|문|민|박|반|방|배|백|변|복|"
                   "봉|부|빈|사|서|석|선우|설|성|소|손|송|신|심|안|양|어|엄|여|연|예|오|옥|왕|용|우|원|위|유|육|윤|은|"
                   "이|인|임|장|전|정|제갈|조|주|지|진|차|채|천|최|추|탁|태|편|표|피|하|한|함|허|현|형|홍|황보|황" ),
            Words(
                "가람|가영|강민|건우|경수|경아|관우|광호|국진|규리|규현|기태|길동|나래|나은|남일|노을|다빈|다혜|달수|"
                "대현|도경|도윤|동건|동욱|두리|득구|라희|만수|명자|무열|문희|미란|미소|민기|민정|바다|범석|병철|보람|"
                "봉선|상철|새롬|서연|석진|선영|성민|세영|소라|솔미|송이|수빈|수진|순덕|슬기|승우|시우|신애|아름|아영|"
                "양희|여진|연우|영숙|예슬|옥분|완수|용준|우진|웅|원빈|유나|유진|윤서|은경|은지|을용|이슬|인혜|일화|"
                "자영|재범|재희|정미|정훈|종국|주연|준호|중기|지민|지혜|진수|찬우|채원|창민|천수|초롱|춘자|치영|태연|"
                "태호|필립|하늘|하준|해진|향숙|현정|형식|혜교|호동|홍철|화영|효리|후|훈민|휘성|희선" ),
            Words(
                "서울특별시 종로구|서울특별시 마포구|서울특별시 관악구|서울특별시 은평구|부산광역시 "
                "해운대구|대구광역시 수성구|"
                "인천광역시 부평구|광주광역시 광산구|대전광역시 유성구|울산광역시 울주군|수원시 팔달구|성남시 분당구|"
                "고양시 일산동구|용인시 처인구|안양시 만안구|의정부시|춘천시|원주시|강릉시|속초시|청주시 흥덕구|충주시|"
                "천안시 서북구|아산시|전주시 덕진구|군산시|익산시|여수시|순천시|목포시|포항시 북구|경주시|구미시|"
                "안동시|창원시 의창구|진주시|통영시|김해시|거제시|서귀포시" ),
            Words( "세종대로|을지로 삼가|퇴계로|테헤란로|압구정로|논현동|신촌로|월드컵북로|올림픽로|양재대로|무학로|"
                   "동백길|벚꽃로|달맞이길|중앙로|시청앞길|학동로|한빛로|솔밭길|뚝섬로" ),
            Words(
                "한빛은행|두레농원|푸른솔약국|장미꽃집|대륭건설|튼튼치과|늘봄유치원|삼거리정육점|새벽시장|까치서점|"
                "맑은샘정수기|우주컴퓨터|별나라문구|황금열쇠|청솔출판사|콩나물국밥|햇살미용실|쌍둥이분식|밝은눈안경원|"
                "꿈나무학원" ),
            Words( "저녁에 전화할 것|아내의 사촌|등산 모임|돈 갚을 것|옆집 아저씨|월요일 휴무|고등학교 동창|영어 잘함|"
                   "담임 선생님|칠월 생일|보일러 수리|낚시 친구|회의는 화요일|주차 가능|이사 갔음" ),
        },
    };
}

std::vector<RegionalNames> CentralEuropeanNames()
{
    return {
        {
            "Polish",
            false,
            Words(
                "Adamczyk|Baranowski|Bąk|Białek|Błaszczyk|Borkowska|Brzęczek|Chmielewski|Cieślak|Czajkowska|Ćwiklińska|"
                "Dąbrowska|Drozd|Dudziński|Dziedzic|Fijałkowski|Frątczak|Gąsior|Gołębiewska|Górski|Grześkowiak|Hałas|"
                "Iwańska|Jabłoński|Janik|Jasiński|Jóźwiak|Kaźmierczak|Kędzierska|Kłos|Kołodziej|Konieczny|Kowalska|"
                "Kozłowski|Król|Krawczyk|Kubiś|Kwaśniewska|Lewandowski|Łapiński|Łuczak|Maćkowiak|Majchrzak|Malinowska|"
                "Mączka|Michałowski|Mikołajczyk|Mróz|Nowakowska|Olszewski|Orłowska|Ostrówka|Pająk|Pawłowicz|Piątek|"
                "Pietrzyk|Płaza|Przybylska|Rączka|Rogoziński|Rybińska|Rzepecki|Sadłowski|Sęk|Sikora|Skłodowska|Słowik|"
                "Sobczyk|Stępień|Świątek|Szczęsny|Szymańska|Śliwiński|Tokarz|Trzaska|Tyszkiewicz|Urbańska|Walczak|"
                "Wąsik|Wieczorek|Wiśniewska|Wójcicki|Wróblewska|Zając|Zalewski|Zieliński|Żak|Żuraw|Źródlak" ),
            Words( "Agnieszka|Aleksander|Andżelika|Bartłomiej|Błażej|Bogumiła|Bożena|Celina|Czesław|Danuta|Dariusz|"
                   "Elżbieta|"
                   "Eugeniusz|Franciszek|Grażyna|Grzegorz|Halina|Henryk|Irena|Jadwiga|Jakub|Jarosław|Joanna|Józefina|"
                   "Kazimierz|Krzysztof|Lesław|Lucjan|Łucja|Łukasz|Małgorzata|Michał|Mieczysław|Miłosz|Natalia|Paweł|"
                   "Przemysław|Radosław|Rafał|Róża|Ryszard|Sławomir|Stanisława|Szczepan|Tadeusz|Teresa|Urszula|Wacław|"
                   "Wiesława|Władysław|Wojciech|Zdzisław|Zofia|Żaneta" ),
            Words( "Białystok|Bielsko-Biała|Bydgoszcz|Częstochowa|Dąbrowa Górnicza|Elbląg|Gdańsk|Gdynia|Gliwice|Gorzów "
                   "Wielkopolski|"
                   "Jelenia Góra|Katowice|Kielce|Kołobrzeg|Kraków|Legnica|Lublin|Łomża|Łódź|Nowy Sącz|Olsztyn|Opole|"
                   "Poznań|Przemyśl|Radom|Rzeszów|Słupsk|Świnoujście|Tarnów|Toruń|Wałbrzych|Włocławek|Wrocław|Zamość|"
                   "Zielona Góra" ),
            Words( "ul. Długa|ul. Kościuszki|ul. Słowackiego|Aleje Jerozolimskie|ul. Źródlana|ul. Żeromskiego|plac "
                   "Wolności|"
                   "ul. Ogrodowa|ul. Świętej Anny|ul. Piłsudskiego|ul. Mickiewicza|os. Zwycięstwa|ul. Lipowa|ul. "
                   "Królewska|"
                   "ul. Grunwaldzka|ul. Łąkowa" ),
            Words( "Apteka Pod Lwem|Zakład Stolarski|Spółdzielnia Mleczarska|Księgarnia Piątka|Biuro Podróży Słońce|"
                   "Przychodnia Zdrowia|Wytwórnia Mebli|Usługi Budowlane|Kwiaciarnia Róża|Szkoła Językowa|Cukiernia|"
                   "Przedsiębiorstwo Handlowe" ),
            Words(
                "dzwonić po szesnastej|sąsiadka|urodziny w październiku|kolega ze studiów|hydraulik|mówi po węgiersku|"
                "księgowa|nie odbiera w środę|nauczyciel muzyki|wisi sto złotych" ),
        },
        {
            "Czech",
            false,
            Words(
                "Bartoš|Beneš|Beran|Bílek|Blažek|Boháčová|Březina|Burešová|Čapek|Čermák|Čížková|Doležal|Dostálová|"
                "Dušek|Fialová|Fišer|Hájek|Havlíčková|Holeček|Horáková|Hruška|Chalupová|Janoušek|Ježek|Jírová|Kadlec|"
                "Kašpar|Klímová|Kopecký|Kovář|Králová|Kratochvíl|Kříž|Kubíčková|Lišková|Machová|Marešová|Matějka|"
                "Moravcová|Mužík|Navrátil|Němcová|Odstrčil|Pavlíček|Pešek|Plachá|Pokorný|Pospíšilová|Procházka|Průša|"
                "Rezková|Růžička|Řehoř|Řezníček|Sedláček|Skála|Slavíková|Smetana|Soukup|Staněk|Šafář|Ševčíková|Šimek|"
                "Šťastný|Švejda|Tichá|Toman|Tůma|Urban|Vacková|Vaněk|Vávrová|Veselý|Vítek|Vlček|Vodičková|Volný|"
                "Vondráček|"
                "Zedník|Zelenka|Žáček|Žižková" ),
            Words(
                "Adéla|Alžběta|Aneta|Bedřich|Blažena|Bohumil|Božena|Břetislav|Dalibor|Daniela|Dušan|Eliška|František|"
                "Hynek|Ilona|Ivana|Jáchym|Jarmila|Jindřich|Jiřina|Jitka|Kateřina|Klára|Květa|Ladislav|Lenka|Libuše|"
                "Lubomír|Ludmila|Lukáš|Magdaléna|Markéta|Matěj|Milada|Miloš|Naděžda|Ondřej|Pavlína|Radek|Radim|Romana|"
                "Růžena|Řehoř|Soňa|Svatopluk|Šárka|Šimon|Štěpán|Taťána|Tomáš|Václav|Věra|Vlasta|Vojtěch|Zbyněk|Zdeňka|"
                "Zuzana|Žofie" ),
            Words(
                "Brno|Břeclav|České Budějovice|Český Krumlov|Děčín|Frýdek-Místek|Havířov|Hodonín|Hradec Králové|Cheb|"
                "Chomutov|Jablonec|Jihlava|Karlovy Vary|Kladno|Kroměříž|Kutná Hora|Liberec|Litoměřice|Mělník|Most|"
                "Náchod|Olomouc|Opava|Ostrava|Pardubice|Písek|Plzeň|Prostějov|Přerov|Příbram|Tábor|Teplice|Třebíč|"
                "Třinec|Uherské Hradiště|Ústí nad Labem|Zlín|Znojmo|Žďár" ),
            Words( "Dlouhá|Husova|Jiráskova|Komenského náměstí|Květinová|Lipová|Masarykova třída|Na Příkopě|Nádražní|"
                   "Palackého|Polní|Růžová|Školní|Třída Míru|U Mlýna|Václavské náměstí|Zahradní|Žižkova" ),
            Words( "Pekařství U Anděla|Stavební dvůr|Lékárna Na Růžku|Truhlářství|Účetní kancelář|Mateřská "
                   "škola|Řeznictví|"
                   "Květinářství|Zámečnictví|Tiskárna|Hotel Modrý lev|Autodíly" ),
            Words(
                "volat až večer|sousedka z chaty|narozeniny v září|spolužák|instalatér|nepracuje v úterý|umí německy|"
                "dluží tisíc korun|učitel houslí|přítel dětství" ),
        },
        {
            "Hungarian",
            false,
            Words(
                "Ágoston|Almási|Angyal|Bakó|Balázs|Bárány|Benkő|Bíró|Bodnár|Bognár|Borbély|Czuczor|Cserháti|Csányi|"
                "Dávid|Dévényi|Dömötör|Erdélyi|Erdős|Faragó|Fehérvári|Földes|Füredi|Gárdonyi|Gáspár|Gellért|Gőz|Győri|"
                "Hajdú|Hegedűs|Hídvégi|Jakab|Jónás|Kárpáti|Kecskés|Keresztes|Kelemen|Kőszegi|Lázár|Lengyel|Lőrinc|"
                "Lukács|Madarász|Márton|Megyeri|Mészöly|Mohácsi|Nádas|Nyíri|Ősz|Orbán|Pásztor|Pécsi|Petőfi|Pintér|"
                "Pölöskei|Rácz|Radnóti|Répási|Sárközi|Somogyi|Sípos|Szűcs|Székely|Szendrő|Szolnoki|Szőke|Tárnok|Tóth|"
                "Tőkés|Udvardy|Ujvári|Ürögdi|Vajda|Várkonyi|Végh|Vörösmarty|Zsigmond|Zsoldos" ),
            Words(
                "Ádám|Ágnes|Aladár|András|Anikó|Árpád|Attila|Béla|Bernadett|Borbála|Dániel|Dezső|Dóra|Edit|Elemér|"
                "Emőke|Enikő|Erzsébet|Ferenc|Flóra|Gábor|Gergő|Géza|Gizella|György|Gyöngyi|Hajnalka|Ildikó|Imre|István|"
                "Jenő|Jolán|Judit|Júlia|Kálmán|Katalin|Kinga|Klára|Kornél|Krisztián|László|Lőrinc|Magdolna|Márta|"
                "Mátyás|Melinda|Mihály|Miklós|Nikolett|Noémi|Ödön|Örs|Pál|Piroska|Réka|Rózsa|Szabolcs|Szilárd|Tamás|"
                "Teréz|Tímea|Tünde|Zoltán|Zsófia|Zsuzsanna" ),
            Words(
                "Ajka|Baja|Balatonfüred|Békéscsaba|Budapest|Cegléd|Debrecen|Dunaújváros|Eger|Érd|Esztergom|Gödöllő|"
                "Gyöngyös|Gyula|Hódmezővásárhely|Kaposvár|Kazincbarcika|Keszthely|Kiskunfélegyháza|Kőszeg|Makó|"
                "Mezőkövesd|"
                "Miskolc|Mosonmagyaróvár|Nagykőrös|Nyíregyháza|Orosháza|Ózd|Pápa|Pécs|Salgótarján|Siófok|Sopron|Szeged|"
                "Székesfehérvár|Szekszárd|Szentendre|Szolnok|Szombathely|Tatabánya|Törökszentmiklós|Vác|Veszprém|"
                "Zalaegerszeg" ),
            Words( "Ady Endre utca|Árpád fejedelem útja|Bem rakpart|Erzsébet körút|Fő utca|Gyár utca|Hősök tere|József "
                   "Attila utca|"
                   "Kertész köz|Kossuth Lajos tér|Mártírok útja|Nyár utca|Petőfi Sándor utca|Szőlő köz|Tűzoltó utca|"
                   "Vörösmarty tér" ),
            Words( "Könyvesbolt|Pékség a Sarkon|Őrségi Faipari Kft.|Tűzép telep|Gyógyszertár|Ügyvédi iroda|Cipőbolt|"
                   "Fővárosi Vízművek|Virágüzlet|Zöldséges|Autószerviz|Nyelviskola" ),
            Words( "este hívni|szomszéd néni|októberben született|egyetemi évfolyamtárs|vízvezeték-szerelő|szerdán nem "
                   "dolgozik|"
                   "jól beszél németül|tartozik tízezerrel|zenetanár|gyerekkori barát" ),
        },
        {
            "Croatian",
            false,
            Words(
                "Babić|Barišić|Blažević|Bošnjak|Brkić|Cindrić|Čačić|Čorić|Ćosić|Dragičević|Dujmović|Đurđević|Filipović|"
                "Galić|Grgić|Hodžić|Horvatinčić|Ivanišević|Jakšić|Jelačić|Jurišić|Kasumović|Klarić|Knežević|Kovačević|"
                "Krznarić|Lončar|Lučić|Mandić|Marušić|Matošić|Mihaljević|Nikšić|Novoselec|Obrežan|Pavelić|Pejić|"
                "Petrović|"
                "Plenković|Poljak|Radičević|Rukavina|Sučić|Šarić|Šimunović|Škorić|Štimac|Tadić|Tomašević|Trupčević|"
                "Ugrešić|Vidović|Vrančić|Vučković|Zebić|Zrinščak|Žagar|Žanić|Živković" ),
            Words( "Anđela|Ante|Blaženka|Boško|Božidar|Branka|Damir|Danijela|Dražen|Đurđica|Franjo|Goran|Gordana|Grgur|"
                   "Hrvoje|Ilija|Iva|Ivica|Jadranka|Josip|Katica|Krešimir|Lovro|Ljerka|Maša|Mate|Mislav|Nataša|Nenad|"
                   "Nikša|Petra|Radoslav|Ružica|Siniša|Slavica|Snježana|Stjepan|Šime|Tihomir|Tomislav|Vesna|Višnja|"
                   "Vjekoslav|"
                   "Zdravko|Željko|Zrinka|Žarko" ),
            Words( "Bjelovar|Čakovec|Dubrovnik|Đakovo|Gospić|Karlovac|Koprivnica|Križevci|Krško|Makarska|Našice|Osijek|"
                   "Požega|Pula|Rijeka|Rovinj|Samobor|Sinj|Sisak|Slavonski Brod|Split|Šibenik|Trogir|Varaždin|Vinkovci|"
                   "Virovitica|Vukovar|Zadar|Zagreb|Županja" ),
            Words( "Ulica kneza Višeslava|Trg bana Jelačića|Gundulićeva|Savska "
                   "cesta|Vukovarska|Držićeva|Šetalište|Radnička|"
                   "Preradovićeva|Cvjetno naselje|Strossmayerova|Žrtava fašizma" ),
            Words( "Građevinski obrt|Ljekarna|Cvjećarnica Ruža|Knjižara|Tvornica obuće|Odvjetnički ured|Pekara Klas|"
                   "Dječji vrtić|Riječka banka|Autoškola|Mesnica|Slastičarnica" ),
            Words( "zvati navečer|susjeda|rođendan u siječnju|prijatelj iz škole|vodoinstalater|ne radi "
                   "četvrtkom|govori mađarski|"
                   "duguje tisuću kuna|učiteljica|kum" ),
        },
    };
}

std::vector<RegionalNames> WesternEuropeanNames()
{
    return {
        {
            "German",
            false,
            Words(
                "Bäcker|Böhm|Brückner|Büchner|Dörfler|Dürr|Föhr|Früh|Fürst|Gärtner|Göbel|Götz|Größle|Grünwald|Günther|"
                "Häberle|Hänsel|Höfer|Hübner|Jäger|Jörgens|Käfer|Kästner|König|Köster|Krämer|Krüger|Kühn|Lämmle|"
                "Löffler|"
                "Lüders|Mäurer|Möller|Mühlbauer|Nägele|Nößler|Öttinger|Pfänder|Plötz|Pröll|Räder|Rößler|Rühmann|Sänger|"
                "Schäfer|Schönfeld|Schröder|Schütz|Späth|Stöhr|Strauß|Süß|Täuber|Töpfer|Trübner|Übel|Vögele|Völker|"
                "Wächter|Weiß|Wörner|Wünsche|Zöllner|Zülch|Ahrens|Berger|Conrad|Dietrich|Engel|Fuchs|Hartmann|Keller|"
                "Lorenz|Naumann|Otto|Peters|Richter|Simon|Thiel|Vogel|Winkler|Ziegler" ),
            Words(
                "Albrecht|Änne|Bärbel|Björn|Brigitte|Christof|Dieter|Dörte|Edelgard|Elfriede|Erwin|Franziska|Friedhelm|"
                "Gerlinde|Günter|Götz|Hannelore|Hänschen|Heidrun|Hermine|Ingeborg|Jörg|Jürgen|Käthe|Karsten|Kläre|"
                "Leonore|Lüder|Margarete|Matthäus|Mechthild|Norbert|Ömer|Petra|Rüdiger|Reinhild|Roswitha|Sönke|Steffen|"
                "Theresia|Traugott|Udo|Ulrike|Ursel|Volker|Walburga|Wilfried|Wolfgang" ),
            Words(
                "Aachen|Altötting|Bad Münder|Böblingen|Braunschweig|Düren|Düsseldorf|Eisenhüttenstadt|Esslingen|Fürth|"
                "Gießen|Göppingen|Göttingen|Gütersloh|Hagen|Köln|Königs "
                "Wusterhausen|Lörrach|Lübeck|Lüneburg|Mönchengladbach|"
                "Mühlheim|München|Münster|Neuß|Nürnberg|Osnabrück|Plön|Saarbrücken|Schwäbisch Hall|Tübingen|Überlingen|"
                "Wien|Wörth|Würzburg|Zürich" ),
            Words( "Ährenweg|Bahnhofstraße|Bürgermeister-Smidt-Straße|Färbergasse|Gänsemarkt|Grüner Weg|Hauptstraße|"
                   "Höhenstraße|Jägerallee|Königsplatz|Lange "
                   "Straße|Mühlenweg|Münzgasse|Rößlestraße|Schloßallee|Schützenplatz|"
                   "Süderstraße|Übersee-Ring" ),
            Words( "Bäckerei Löwe|Bürobedarf Nord|Fußbodentechnik|Gärtnerei am Moor|Möbelhaus Eiche|Getränke "
                   "Süd|Büchereck|"
                   "Stadtwerke|Prüfdienst|Schülerhilfe|Zahnärzte am Markt|Tönnies Spedition" ),
            Words( "abends zurückrufen|Nachbarin von früher|Geburtstag im März|spricht Französisch|Klempner|dienstags "
                   "nicht da|"
                   "schuldet fünfzig Euro|Geigenlehrer|Schlüssel liegt drüben|Großtante" ),
        },
        {
            "French",
            false,
            Words( "Aubépine|Barthélemy|Béranger|Besançon|Boïeldieu|Brûlé|Cézard|Château|Clément|Crépin|Dèche|Décarie|"
                   "Delacôte|Desprès|Duprêtre|Étienne|Févre|Forêt|Frémont|Gérard|Guérin|Hébert|Hélary|Jérôme|Lacôte|"
                   "Lambért|Laîné|Lefèbvre|Légaré|Lemaître|Lévêque|Maréchal|Mézière|Noël|Pénicaud|Pérès|Poiré|Prévost|"
                   "Préjean|Quéré|Rémy|Rivière|Sébastien|Séverin|Tétreault|Thévenin|Trémolière|Vallée|Vérité|Viétor|"
                   "Bonnard|Carpentier|Dubois|Fontaine|Garnier|Joubert|Lacroix|Marchand|Perrin|Roussel" ),
            Words( "Adèle|Aimée|Amélie|Anaïs|André|Angèle|Aurélien|Bénédicte|Bérénice|Cécile|Célestin|Chloé|Clémence|"
                   "Cédric|Didier|Édith|Élise|Éloïse|Émile|Estelle|Fabrice|Félix|Frédérique|Gaël|Geneviève|Gérald|"
                   "Grégoire|"
                   "Héloïse|Hervé|Inès|Irénée|Jérémie|Joëlle|Léa|Léonie|Loïc|Maëlys|Mélanie|Michèle|Noémie|Océane|"
                   "Pénélope|"
                   "Raphaël|Régis|Rémi|Renée|Sébastien|Solène|Stéphane|Thérèse|Valérie|Véronique|Zoé" ),
            Words(
                "Aix-en-Provence|Alès|Angoulême|Béziers|Besançon|Châteauroux|Chambéry|Compiègne|Crépy|Évreux|Fréjus|"
                "Genève|Grenoble|La Réunion|Le Kremlin-Bicêtre|Liège|Mâcon|Montélimar|Montréal|Neuchâtel|Nîmes|Orléans|"
                "Périgueux|Québec|Roanne|Saint-Étienne|Sète|Thonon|Tourcoing|Trois-Rivières|Valence|Vénissieux|"
                "Vézelay" ),
            Words( "allée des Érables|avenue de la République|boulevard Saint-Michel|chemin des Prés|cours Mirabeau|"
                   "impasse du Château|place de la Liberté|quai de la Pêcherie|route de Genève|rue de l'Église|rue des "
                   "Chênes|"
                   "rue du Général Leclerc|rue Molière|rue Pasteur|square des Poètes" ),
            Words( "Boulangerie du Marché|Cabinet médical|Crêperie bretonne|École maternelle|Électricité "
                   "générale|Fromagerie des Alpes|"
                   "Garage Métropole|Hôtel du Lac|Mairie|Pâtisserie Rêve|Société forestière|Théâtre municipal" ),
            Words(
                "appeler le soir|voisine de palier|anniversaire en août|collègue de bureau|plombier|fermé le mercredi|"
                "parle très bien l'espagnol|doit cinquante euros|professeur de piano|déménage bientôt|clé chez la "
                "gardienne" ),
        },
        {
            "Spanish",
            false,
            Words(
                "Acuña|Álvarez|Arévalo|Báez|Benítez|Bolaños|Cabañas|Cáceres|Calderón|Cañizares|Cárdenas|Córdoba|Dávila|"
                "Durán|Echeverría|Escribá|Espín|Estévez|Fariñas|Galán|Gálvez|García|Gijón|Giménez|Gómez|Guzmán|Ibáñez|"
                "Íñiguez|Jiménez|Julián|León|Luján|Lázaro|Marín|Márquez|Martín|Méndez|Miñarro|Morán|Muñoz|Náñez|Núñez|"
                "Ordóñez|Páez|Peláez|Peñalosa|Quiñones|Ramírez|Ríos|Rincón|Sáez|Salomón|Sánchez|Solís|Suárez|Tébar|"
                "Téllez|Valdés|Vázquez|Velázquez|Yáñez|Zúñiga|Blanco|Castro|Herrera|Molina|Navarro|Ortega|Romero|"
                "Torres" ),
            Words(
                "Adrián|Agustín|Álvaro|Ángela|Araceli|Aurelio|Begoña|Belén|Benjamín|César|Concepción|Cristóbal|Dámaso|"
                "Efraín|Elías|Encarnación|Érica|Fabián|Fátima|Germán|Héctor|Inmaculada|Íñigo|Iván|Jesús|Joaquín|Jorge|"
                "José|Julián|Leocadia|Lucía|Macarena|Martín|Matías|Míriam|Mónica|Nicolás|Noé|Óscar|Pilar|Raquel|Raúl|"
                "Rocío|Rubén|Ramón|Salomé|Saúl|Sofía|Tomás|Úrsula|Valentín|Verónica|Víctor|Ximena|Yolanda" ),
            Words(
                "A Coruña|Alcalá de Henares|Alcorcón|Almería|Asunción|Ávila|Bogotá|Cáceres|Cádiz|Castellón|Ciudad "
                "Juárez|"
                "Córdoba|Gijón|Jaén|La Línea|León|Logroño|Lugo|Mahón|Málaga|Medellín|Mérida|Mazatlán|Móstoles|Murcia|"
                "Orense|Panamá|Querétaro|San Sebastián|Sabiñánigo|Tucumán|Valparaíso|Vigo|Zaragoza" ),
            Words( "avenida de la Constitución|calle Ángel Guimerá|calle del Olmo|calle Juan Ramón Jiménez|calle Mayor|"
                   "callejón del Pozo|camino de los Almendros|carretera de Andalucía|paseo de la Castellana|paseo "
                   "Marítimo|"
                   "plaza de España|plaza Colón|ronda de Atocha|travesía del Niño" ),
            Words( "Academia de Inglés|Cafetería Rincón|Carpintería Peña|Clínica dental|Construcciones "
                   "Ebro|Electrónica Sur|"
                   "Farmacia|Fontanería Rápida|Frutería Doña Ana|Gestoría|Librería Cervantes|Panadería|Viñedos del "
                   "Duero" ),
            Words( "llamar por la mañana|vecina del ático|cumpleaños en mayo|compañero de colegio|fontanero|no trabaja "
                   "los miércoles|"
                   "habla alemán|debe quince euros|profesor de música|tía de Inés" ),
        },
        {
            "Portuguese",
            false,
            Words(
                "Abrantes|Aragão|Assunção|Azevêdo|Baião|Brandão|Calixto|Câmara|Camões|Conceição|Corrêa|Damião|Estêvão|"
                "Falcão|Feijó|Félix|Fragão|Frazão|Galvão|Gastão|Gonçalves|Guimarães|Inácio|Jardão|Leitão|Lourenço|"
                "Luís|Magalhães|Mourão|Negrão|Paixão|Patrício|Pontífice|Proença|Quintão|Ramalhão|Rendeiro|Ressurreição|"
                "Romão|Salomão|Sebastião|Simões|Sá|Tomás|Valadão|Verão|Vitória|Zêzere|Almeida|Barbosa|Carvalho|Fonseca|"
                "Lopes|Moreira|Nogueira|Pacheco|Teixeira|Vieira" ),
            Words(
                "Adão|Aníbal|António|Aurélia|Bárbara|Brás|Cecília|César|Cláudia|Conceição|Débora|Dinis|Emília|Estêvão|"
                "Eugénio|Fábio|Filomena|Flávia|Gonçalo|Graça|Hélder|Helena|Inês|Íris|Joana|João|Jorge|Júlio|Leonor|"
                "Lídia|Luísa|Mafalda|Márcia|Mário|Mónica|Natália|Octávio|Otília|Patrícia|Quitéria|Rogério|Rosália|"
                "Rúben|Sérgio|Sílvia|Simão|Tânia|Tiago|Valdemar|Vânia|Vitória|Zélia" ),
            Words(
                "Almeirim|Amadora|Aracaju|Bragança|Braga|Brasília|Covilhã|Cuiabá|Estoril|Évora|Florianópolis|Fundão|"
                "Goiânia|Guimarães|Leça da Palmeira|Lisboa|Loulé|Maceió|Maputo|Portimão|Póvoa de Varzim|Ribeirão Preto|"
                "Santarém|São Luís|São Paulo|Seixal|Setúbal|Tomar|Uberlândia|Viseu|Vitória" ),
            Words( "avenida da Liberdade|avenida São João|beco do Carmo|calçada da Glória|estrada da "
                   "Circunvalação|ladeira da Conceição|"
                   "largo do Rossio|praça da Alegria|praça do Comércio|rua Augusta|rua da Misericórdia|rua das Flores|"
                   "rua do Barão|travessa do Açúcar" ),
            Words( "Açougue Central|Água e Luz|Colégio da Imaculada|Construções Tejo|Farmácia "
                   "Popular|Funilaria|Livraria Sá|"
                   "Mercearia Avó Rosa|Óptica Visão|Padaria Pão Quente|Salão de Beleza|Transportes Irmãos Leal" ),
            Words( "ligar à noite|vizinha do rés-do-chão|aniversário em março|colega da faculdade|canalizador|não "
                   "atende às terças|"
                   "fala francês|deve cem reais|professora de inglês|irmão do Zé" ),
        },
        {
            "Danish",
            false,
            Words(
                "Ågård|Ågesen|Bæk|Bjørn|Bødker|Brønnum|Christensen|Dahlgård|Ebbesen|Enevoldsen|Færch|Frøslev|"
                "Gammelgård|"
                "Gråbøl|Højer|Højgaard|Hørning|Iversen|Jørgensen|Kjær|Kjærgård|Knøfler|Købke|Kølln|Lærke|Løkke|Møller|"
                "Mørch|Nørby|Nørgård|Østergaard|Øvig|Præst|Pålsson|Ravnkjær|Rønne|Sæther|Søgaard|Sønderby|Sørensen|"
                "Tækker|Thygesen|Tønder|Ulrichsen|Vestergård|Vinther|Wæver|Årup" ),
            Words( "Åge|Aksel|Åse|Asbjørn|Bente|Birthe|Bjørg|Bodil|Børge|Dorthe|Ejnar|Finn|Frede|Gøran|Gudrun|Håkon|"
                   "Hjørdis|Inge|Jørgen|Jytte|Karl-Åge|Kirsten|Kåre|Lærke|Margrethe|Mogens|Pål|Pernille|Preben|Rasmus|"
                   "Søren|Sørine|Svend|Tove|Troels|Ulla|Vibeke|Villads|Øjvind|Ørjan" ),
            Words( "Aabenraa|Ålborg|Århus|Birkerød|Brædstrup|Brøndby|Esbjerg|Fåborg|Fredericia|Frederikshavn|Gråsten|"
                   "Hadsten|Helsingør|Hillerød|Hjørring|Hørsholm|Kalundborg|København|Køge|Løgstør|Middelfart|Nakskov|"
                   "Nykøbing|Næstved|Ølstykke|Rødovre|Silkeborg|Skælskør|Sønderborg|Tårnby|Tromsø|Tønsberg|Værløse" ),
            Words( "Ågade|Ahornvej|Bøgevænget|Brønshøjvej|Gåsetorvet|Kærvej|Kirkegade|Lærkevej|Møllebakken|Nørregade|"
                   "Østre Allé|Rådhuspladsen|Skovgårdsvej|Søndergade|Strandvænget|Åboulevarden" ),
            Words(
                "Bageriet på hjørnet|Blikkenslager|Børnehaven Solstrålen|Cykelsmeden|Gårdbutikken|Kørelærer|Lægehuset|"
                "Møbelsnedkeren|Rørfirmaet|Sømandshjemmet|Tandlæge|Trælasten" ),
            Words( "ring efter klokken fem|nabo på tredje|fødselsdag i februar|fra højskolen|blikkenslager|lukket om "
                   "søndagen|"
                   "taler færøsk|skylder hundrede kroner|fløjtelærer|gammel skolekammerat" ),
        },
    };
}

} // namespace PimManager::Tools
