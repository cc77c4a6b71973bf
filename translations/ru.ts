<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>PHONE_UI_RecentCallCostSetupView</name>
    <message>
        <source>TXT_RID_SETTING_A_CREDIT_LIMIT</source>
        <comment>Credit Limit</comment>
        <translation>Лимит кредита</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CURRENCY_TYPE</source>
        <comment>Currency Type</comment>
        <translation>Тип валюты</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>All costs have been reset to 0.00 units.</comment>
        <translation>Все расходы сброшены до 0.00 единиц.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ALL_CALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>All call costs have been reset to 0.00 units.</comment>
        <translation>Стоимость всех вызовов сброшена до 0.00 единиц.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_DIALED_CALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>Dialed call costs have been reset to 0.00 units.</comment>
        <translation>Стоимость исходящих вызовов сброшена до 0.00 единиц.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ANSWERED_CALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>Answered call costs have been reset to 0.00 units.</comment>
        <translation>Стоимость входящих вызовов сброшена до 0.00 единиц.</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_B_ON</source>
        <comment>On</comment>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_B_OFF</source>
        <comment>Off</comment>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ON</source>
        <comment>On</comment>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_OFF</source>
        <comment>Off</comment>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CUSTOM</source>
        <comment>Custom</comment>
        <translation>Другая</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_SAVE</source>
        <comment>Save</comment>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_RESET_CALLS</source>
        <comment>Reset Calls</comment>
        <translation>Сброс вызовов</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CURRENCY</source>
        <comment>Currency</comment>
        <translation>Валюта</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CHOOSE_TYPE</source>
        <comment>Choose Type</comment>
        <translation>Выбор валюты</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CURRENCY_TYPE</source>
        <comment>Currency Type</comment>
        <translation>Валюта</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_COST_PER_MINUTE</source>
        <comment>Cost Per Minute</comment>
        <translation>Цена за минуту</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ADJUST_CREDIT_LIMIT</source>
        <comment>Adjust Credit Limit</comment>
        <translation>Изменить лимит</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_COST_SETUP</source>
        <comment>Call-Cost Setup</comment>
        <translation>Настройка стоимости</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Назад</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UNITED_ARAB_EMIRATES_DIRHAM_AED</source>
        <comment>UNITED ARAB EMIRATES  DIRHAM  (AED)</comment>
        <translation>Объединённые Арабские Эмираты: дирхам (AED)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AFGHANISTAN_AFGHANI_AFA</source>
        <comment>AFGHANISTAN  AFGHANI  (AFA)</comment>
        <translation>Афганистан: афгани (AFA)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ALBANIA_LEK_ALL</source>
        <comment>ALBANIA  LEK  (ALL)</comment>
        <translation>Албания: лек (ALL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ARMENIA_DRAM_AMD</source>
        <comment>ARMENIA  DRAM  (AMD)</comment>
        <translation>Армения: драм (AMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NETHERLANDS_ANTILLES_GUILDER_ANG</source>
        <comment>NETHERLANDS ANTILLES  GUILDER  (ANG)</comment>
        <translation>Нидерландские Антилы: гульден (ANG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ANGOLA_NEW_KWANZA_AON</source>
        <comment>ANGOLA  NEW KWANZA  (AON)</comment>
        <translation>Ангола: новая кванза (AON)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ARGENTINA_PESO_ARS</source>
        <comment>ARGENTINA  PESO  (ARS)</comment>
        <translation>Аргентина: песо (ARS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AUSTRIA_SCHILLING_ATS</source>
        <comment>AUSTRIA  SCHILLING  (ATS)</comment>
        <translation>Австрия: шиллинг (ATS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AUSTRALIA_KIRIBATI_DOLLAR_AUD</source>
        <comment>AUSTRALIA KIRIBATI  DOLLAR  (AUD)</comment>
        <translation>Австралия, Кирибати: доллар (AUD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ARUBA_FLORIN_AWG</source>
        <comment>ARUBA  FLORIN  (AWG)</comment>
        <translation>Аруба: флорин (AWG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AZERBAIJAN_MANAT_AZM</source>
        <comment>AZERBAIJAN  MANAT  (AZM)</comment>
        <translation>Азербайджан: манат (AZM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BARBADOS_DOLLAR_BBD</source>
        <comment>BARBADOS  DOLLAR  (BBD)</comment>
        <translation>Барбадос: доллар (BBD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BANGLADESH_TAKA_BDT</source>
        <comment>BANGLADESH  TAKA  (BDT)</comment>
        <translation>Бангладеш: така (BDT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BELGIUM_FRANC_BEF</source>
        <comment>BELGIUM  FRANC  (BEF)</comment>
        <translation>Бельгия: франк (BEF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BULGARIA_LEW_BGN</source>
        <comment>BULGARIA  LEW  (BGN)</comment>
        <translation>Болгария: лев (BGN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BAHRAIN_DINAR_BHD</source>
        <comment>BAHRAIN  DINAR  (BHD)</comment>
        <translation>Бахрейн: динар (BHD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BURUNDI_FRANC_BIF</source>
        <comment>BURUNDI  FRANC  (BIF)</comment>
        <translation>Бурунди: франк (BIF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BERMUDA_DOLLAR_BMD</source>
        <comment>BERMUDA  DOLLAR  (BMD)</comment>
        <translation>Бермуды: доллар (BMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BRUNEI_DOLLAR_BND</source>
        <comment>BRUNEI  DOLLAR  (BND)</comment>
        <translation>Бруней: доллар (BND)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BOLIVIA_BOLIVIANO_BOB</source>
        <comment>BOLIVIA  BOLIVIANO  (BOB)</comment>
        <translation>Боливия: боливиано (BOB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BRAZIL_REAL_BRL</source>
        <comment>BRAZIL  REAL  (BRL)</comment>
        <translation>Бразилия: реал (BRL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BAHAMAS_DOLLAR_BSD</source>
        <comment>BAHAMAS  DOLLAR  (BSD)</comment>
        <translation>Багамы: доллар (BSD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BHUTAN_NGULTRUM_BTN</source>
        <comment>BHUTAN  NGULTRUM  (BTN)</comment>
        <translation>Бутан: нгултрум (BTN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BOTSWANA_PULA_BWP</source>
        <comment>BOTSWANA  PULA  (BWP)</comment>
        <translation>Ботсвана: пула (BWP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BELORUS_ROUBLE_BYR</source>
        <comment>BELORUS  ROUBLE  (BYR)</comment>
        <translation>Беларусь: рубль (BYR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BELIZE_DOLLAR_BZD</source>
        <comment>BELIZE  DOLLAR  (BZD)</comment>
        <translation>Белиз: доллар (BZD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CANADA_DOLLAR_CAD</source>
        <comment>CANADA  DOLLAR  (CAD)</comment>
        <translation>Канада: доллар (CAD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SWITZERLAND_LIECHTENSTEIN_FRANC_CHF</source>
        <comment>SWITZERLAND; LIECHTENSTEIN  FRANC  (CHF)</comment>
        <translation>Швейцария, Лихтенштейн: франк (CHF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CHILE_PESO_CLP</source>
        <comment>CHILE  PESO  (CLP)</comment>
        <translation>Чили: песо (CLP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CHINA_RENMINBI_YUAN_CNY</source>
        <comment>CHINA  RENMINBI ¥UAN  (CNY)</comment>
        <translation>Китай: юань женьминьби (CNY)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_COLUMBIA_PESO_COP</source>
        <comment>COLUMBIA  PESO  (COP)</comment>
        <translation>Колумбия: песо (COP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_COSTA_RICA_COLON_CRC</source>
        <comment>COSTA RICA  COLÓN  (CRC)</comment>
        <translation>Коста-Рика: колон (CRC)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CUBA_PESO_CUP</source>
        <comment>CUBA  PESO  (CUP)</comment>
        <translation>Куба: песо (CUP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CAPE_VERDE_ESCUDO_CVE</source>
        <comment>CAPE VERDE  ESCUDO  (CVE)</comment>
        <translation>Кабо-Верде: эскудо (CVE)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CYPRUS_POUND_CYP</source>
        <comment>CYPRUS  POUND  (CYP)</comment>
        <translation>Кипр: фунт (CYP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CZECH_REPUBLIC_KRONER_CZK</source>
        <comment>CZECH REPUBLIC  KRONER  (CZK)</comment>
        <translation>Чехия: крона (CZK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GERMANY_MARK_DEM</source>
        <comment>GERMANY  MARK  (DEM)</comment>
        <translation>Германия: марка (DEM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DJIBUTI_FRANC_DJF</source>
        <comment>DJIBUTI  FRANC  (DJF)</comment>
        <translation>Джибути: франк (DJF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DENMARK_KRONE_DKK</source>
        <comment>DENMARK  KRONE  (DKK)</comment>
        <translation>Дания: крона (DKK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DOMINICAN_REPUBLIC_PESO_DOP</source>
        <comment>DOMINICAN REPUBLIC  PESO  (DOP)</comment>
        <translation>Доминиканская Республика: песо (DOP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ALGERIA_DINAR_DZD</source>
        <comment>ALGERIA  DINAR  (DZD)</comment>
        <translation>Алжир: динар (DZD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ECUADOR_SUCRE_ECS</source>
        <comment>ECUADOR  SUCRE  (ECS)</comment>
        <translation>Эквадор: сукре (ECS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ESTONIA_KROON_EEK</source>
        <comment>ESTONIA  KROON  (EEK)</comment>
        <translation>Эстония: крона (EEK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EGYPT_POUND_EGP</source>
        <comment>EGYPT  POUND  (EGP)</comment>
        <translation>Египет: фунт (EGP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SPAIN_ANDORRA_PESETA_ESP</source>
        <comment>SPAIN ANDORRA  PESETA  (ESP)</comment>
        <translation>Испания, Андорра: песета (ESP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ETHIOPIA_BIRR_ETB</source>
        <comment>ETHIOPIA  BIRR  (ETB)</comment>
        <translation>Эфиопия: быр (ETB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FINLAND_MARK_FIM</source>
        <comment>FINLAND  MARK  (FIM)</comment>
        <translation>Финляндия: марка (FIM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FIJI_DOLLAR_FJD</source>
        <comment>FIJI  DOLLAR  (FJD)</comment>
        <translation>Фиджи: доллар (FJD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FALKLAND_ISLES_POUND_FKP</source>
        <comment>FALKLAND ISLES  POUND  (FKP)</comment>
        <translation>Фолклендские острова: фунт (FKP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FRANCE_FRANC_FRF</source>
        <comment>FRANCE  FRANC  (FRF)</comment>
        <translation>Франция: франк (FRF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UNITED_KINGDOM_GREAT_BRITAIN_POUND_STERLING_GBP</source>
        <comment>UNITED KINGDOM (GREAT BRITAIN)  POUND STERLING  (GBP)</comment>
        <translation>Великобритания: фунт стерлингов (GBP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GEORGIA_COUPON_GEK</source>
        <comment>GEORGIA  COUPON  (GEK)</comment>
        <translation>Грузия: купон (GEK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GHANA_CEDI_GHC</source>
        <comment>GHANA  CEDI  (GHC)</comment>
        <translation>Гана: седи (GHC)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GIBRALTAR_POUND_GIP</source>
        <comment>GIBRALTAR  POUND  (GIP)</comment>
        <translation>Гибралтар: фунт (GIP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GAMBIA_DALASI_GMD</source>
        <comment>GAMBIA  DALASI  (GMD)</comment>
        <translation>Гамбия: даласи (GMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUINEA_FRANC_GNF</source>
        <comment>GUINEA  FRANC  (GNF)</comment>
        <translation>Гвинея: франк (GNF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GREECE_DRACHMA_GRD</source>
        <comment>GREECE  DRACHMA  (GRD)</comment>
        <translation>Греция: драхма (GRD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUATEMALA_QUETZAL_GTQ</source>
        <comment>GUATEMALA  QUETZAL  (GTQ)</comment>
        <translation>Гватемала: кетсаль (GTQ)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUINEA_BISSAU_PESO_GWP</source>
        <comment>GUINEA-BISSAU  PESO  (GWP)</comment>
        <translation>Гвинея-Бисау: песо (GWP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUYANA_DOLLAR_GYD</source>
        <comment>GUYANA  DOLLAR  (GYD)</comment>
        <translation>Гайана: доллар (GYD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HONG_KONG_DOLLAR_HKD</source>
        <comment>HONG KONG  DOLLAR  (HKD)</comment>
        <translation>Гонконг: доллар (HKD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HONDURAS_LEMPIRA_HNL</source>
        <comment>HONDURAS  LEMPIRA  (HNL)</comment>
        <translation>Гондурас: лемпира (HNL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CROATIA_KUNA_HRK</source>
        <comment>CROATIA  KUNA  (HRK)</comment>
        <translation>Хорватия: куна (HRK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HAITI_GOURDE_HTG</source>
        <comment>HAITI  GOURDE  (HTG)</comment>
        <translation>Гаити: гурд (HTG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HUNGARY_FORINT_HUF</source>
        <comment>HUNGARY  FORINT  (HUF)</comment>
        <translation>Венгрия: форинт (HUF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_INDONESIA_RUPIAH_IDR</source>
        <comment>INDONESIA  RUPIAH  (IDR)</comment>
        <translation>Индонезия: рупия (IDR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IRELAND_PUNT_IEP</source>
        <comment>IRELAND  PUNT  (IEP)</comment>
        <translation>Ирландия: фунт (IEP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ISRAEL_NEW_SHEKEL_ILS</source>
        <comment>ISRAEL  NEW SHEKEL  (ILS)</comment>
        <translation>Израиль: новый шекель (ILS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_INDIA_BHUTAN_RUPEE_INR</source>
        <comment>INDIA; BHUTAN  RUPEE  (INR)</comment>
        <translation>Индия, Бутан: рупия (INR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IRAQ_DINAR_IQD</source>
        <comment>IRAQ  DINAR  (IQD)</comment>
        <translation>Ирак: динар (IQD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IRAN_RIAL_IRR</source>
        <comment>IRAN  RIAL  (IRR)</comment>
        <translation>Иран: риал (IRR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ICELAND_KRONER_ISK</source>
        <comment>ICELAND  KRONER  (ISK)</comment>
        <translation>Исландия: крона (ISK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ITALY_LIRA_ITL</source>
        <comment>ITALY  LIRA  (ITL)</comment>
        <translation>Италия: лира (ITL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JAMAICA_DOLLAR_JMD</source>
        <comment>JAMAICA  DOLLAR  (JMD)</comment>
        <translation>Ямайка: доллар (JMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JORDAN_DINAR_JOD</source>
        <comment>JORDAN  DINAR  (JOD)</comment>
        <translation>Иордания: динар (JOD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JAPAN_YEN_JPY</source>
        <comment>JAPAN  YEN  (JPY)</comment>
        <translation>Япония: иена (JPY)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KENYA_SHILLING_KES</source>
        <comment>KENYA  SHILLING  (KES)</comment>
        <translation>Кения: шиллинг (KES)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KIRGIZISTAN_SOM_KGS</source>
        <comment>KIRGIZISTAN  SOM  (KGS)</comment>
        <translation>Киргизия: сом (KGS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CAMBODIA_RIEL_KHR</source>
        <comment>CAMBODIA  RIEL  (KHR)</comment>
        <translation>Камбоджа: риель (KHR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_COMORES_FRANC_KMF</source>
        <comment>COMORES  FRANC  (KMF)</comment>
        <translation>Коморы: франк (KMF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KOREA_DEMOCRATIC_PEOPLES_REPUBLIC_WON_KPW</source>
        <comment>KOREA, DEMOCRATIC PEOPLE'S REPUBLIC  WON  (KPW)</comment>
        <translation>Северная Корея: вона (KPW)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KOREA_REPUBLIC_SOUTH_KOREA_WON_KRW</source>
        <comment>KOREA, REPUBLIC (SOUTH KOREA)  WON  (KRW)</comment>
        <translation>Южная Корея: вона (KRW)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KUWAIT_DINAR_KWD</source>
        <comment>KUWAIT  DINAR  (KWD)</comment>
        <translation>Кувейт: динар (KWD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CAYMAN_ISLANDS_DOLLAR_KYD</source>
        <comment>CAYMAN ISLANDS  DOLLAR  (KYD)</comment>
        <translation>Каймановы острова: доллар (KYD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KAZAKHSTAN_TENGE_KZT</source>
        <comment>KAZAKHSTAN  TENGE  (KZT)</comment>
        <translation>Казахстан: тенге (KZT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LAOS_KIP_LAK</source>
        <comment>LAOS  KIP  (LAK)</comment>
        <translation>Лаос: кип (LAK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LEBANON_POUND_LBP</source>
        <comment>LEBANON  POUND  (LBP)</comment>
        <translation>Ливан: фунт (LBP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SRI_LANKA_RUPEE_LKR</source>
        <comment>SRI LANKA  RUPEE  (LKR)</comment>
        <translation>Шри-Ланка: рупия (LKR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LIBERIA_DOLLAR_LRD</source>
        <comment>LIBERIA  DOLLAR  (LRD)</comment>
        <translation>Либерия: доллар (LRD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LESOTHO_LOTI_PL_MALOTI_LSL</source>
        <comment>LESOTHO  LOTI (Pl.: MALOTI)  (LSL)</comment>
        <translation>Лесото: лоти (LSL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LITHUANIA_LITAS_LTL</source>
        <comment>LITHUANIA  LITAS  (LTL)</comment>
        <translation>Литва: лит (LTL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LUXEMBOURG_FRANC_LUF</source>
        <comment>LUXEMBOURG  FRANC  (LUF)</comment>
        <translation>Люксембург: франк (LUF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LATVIA_LAT_LVL</source>
        <comment>LATVIA  LAT  (LVL)</comment>
        <translation>Латвия: лат (LVL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LIBYA_DINAR_LYD</source>
        <comment>LIBYA  DINAR  (LYD)</comment>
        <translation>Ливия: динар (LYD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MAROC_DIRHAM_MAD</source>
        <comment>MAROC  DIRHAM  (MAD)</comment>
        <translation>Марокко: дирхам (MAD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MOLDAVIA_LEU_MDL</source>
        <comment>MOLDAVIA  LEU  (MDL)</comment>
        <translation>Молдавия: лей (MDL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MADAGASCAR_FRANC_MGF</source>
        <comment>MADAGASCAR  FRANC  (MGF)</comment>
        <translation>Мадагаскар: франк (MGF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MACEDONIA_DENAR_MKD</source>
        <comment>MACEDONIA  DENAR  (MKD)</comment>
        <translation>Македония: денар (MKD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MYANMAR_KYAT_MMK</source>
        <comment>MYANMAR  KYAT  (MMK)</comment>
        <translation>Мьянма: кьят (MMK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MONGOLIA_TUGRIK_MNT</source>
        <comment>MONGOLIA  TUGRIK  (MNT)</comment>
        <translation>Монголия: тугрик (MNT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MACAU_PATACA_MOP</source>
        <comment>MACAU  PATACA  (MOP)</comment>
        <translation>Макао: патака (MOP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MAURETANIA_OUGUIYA_MRO</source>
        <comment>MAURETANIA  OUGUIYA  (MRO)</comment>
        <translation>Мавритания: угия (MRO)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALTA_LIRA_MTL</source>
        <comment>MALTA  LIRA  (MTL)</comment>
        <translation>Мальта: лира (MTL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MAURITIUS_RUPEE_MUR</source>
        <comment>MAURITIUS  RUPEE  (MUR)</comment>
        <translation>Маврикий: рупия (MUR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALDIVE_ISLES_RUFIYAA_MVR</source>
        <comment>MALDIVE ISLES  RUFIYAA  (MVR)</comment>
        <translation>Мальдивы: руфия (MVR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALAWI_KWACHA_MWK</source>
        <comment>MALAWI  KWACHA  (MWK)</comment>
        <translation>Малави: квача (MWK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MEXICO_NEW_PESO_MXN</source>
        <comment>MEXICO  NEW PESO  (MXN)</comment>
        <translation>Мексика: новое песо (MXN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALAYSIA_RINGGIT_MYR</source>
        <comment>MALAYSIA  RINGGIT  (MYR)</comment>
        <translation>Малайзия: ринггит (MYR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MOZAMBIQUE_METICAL_MZM</source>
        <comment>MOZAMBIQUE  METICAL  (MZM)</comment>
        <translation>Мозамбик: метикал (MZM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NAMIBIA_DOLLAR_NAD</source>
        <comment>NAMIBIA  DOLLAR  (NAD)</comment>
        <translation>Намибия: доллар (NAD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NIGERIA_NAIRA_NGN</source>
        <comment>NIGERIA  NAIRA  (NGN)</comment>
        <translation>Нигерия: найра (NGN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NICARAGUA_GOLD_CORDOBA_NIO</source>
        <comment>NICARAGUA  GOLD CÓRDOBA  (NIO)</comment>
        <translation>Никарагуа: золотая кордоба (NIO)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NETHERLANDS_GUILDER_NLG</source>
        <comment>NETHERLANDS  GUILDER  (NLG)</comment>
        <translation>Нидерланды: гульден (NLG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NORWAY_KRONA_NOK</source>
        <comment>NORWAY  KRONA  (NOK)</comment>
        <translation>Норвегия: крона (NOK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NEPAL_RUPEE_NPW</source>
        <comment>NEPAL  RUPEE  (NPW)</comment>
        <translation>Непал: рупия (NPW)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NEW_ZEALAND_DOLLAR_NZD</source>
        <comment>NEW ZEALAND  DOLLAR  (NZD)</comment>
        <translation>Новая Зеландия: доллар (NZD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_OMAN_RIAL_OMR</source>
        <comment>OMAN  RIAL  (OMR)</comment>
        <translation>Оман: риал (OMR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PANAMA_BALBOA_PAB</source>
        <comment>PANAMA  BALBOA  (PAB)</comment>
        <translation>Панама: бальбоа (PAB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PERU_NEW_SOL_PEN</source>
        <comment>PERU  NEW SOL  (PEN)</comment>
        <translation>Перу: новый соль (PEN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PAPUA_NEW_GUINEA_KINA_PGK</source>
        <comment>PAPUA NEW GUINEA  KINA  (PGK)</comment>
        <translation>Папуа — Новая Гвинея: кина (PGK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PHILIPPINES_PESO_PHP</source>
        <comment>PHILIPPINES  PESO  (PHP)</comment>
        <translation>Филиппины: песо (PHP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PAKISTAN_RUPEE_PYK</source>
        <comment>PAKISTAN  RUPEE  (PYK)</comment>
        <translation>Пакистан: рупия (PYK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_POLAND_ZLOTY_PLN</source>
        <comment>POLAND  ZLOTY  (PLN)</comment>
        <translation>Польша: злотый (PLN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PORTUGAL_ESCUDO_PTE</source>
        <comment>PORTUGAL  ESCUDO  (PTE)</comment>
        <translation>Португалия: эскудо (PTE)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PARAGUAY_GUARANI_PYG</source>
        <comment>PARAGUAY  GUARANI  (PYG)</comment>
        <translation>Парагвай: гуарани (PYG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_QATAR_RIYAL_QAR</source>
        <comment>QATAR  RIYAL  (QAR)</comment>
        <translation>Катар: риял (QAR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ROMANIA_LEU_ROL</source>
        <comment>ROMANIA  LEU  (ROL)</comment>
        <translation>Румыния: лей (ROL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_AZERBAIJAN_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION AZERBAIJAN  ROUBLE  (RUB)</comment>
        <translation>Российская Федерация, Азербайджан: рубль (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_BELARUS_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION BELARUS  ROUBLE  (RUB)</comment>
        <translation>Российская Федерация, Беларусь: рубль (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_TADZIKISTAN_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION TADZIKISTAN  ROUBLE  (RUB)</comment>
        <translation>Российская Федерация, Таджикистан: рубль (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_UZBEKISTAN_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION UZBEKISTAN  ROUBLE  (RUB)</comment>
        <translation>Российская Федерация, Узбекистан: рубль (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUANDA_FRANC_RWF</source>
        <comment>RUANDA  FRANC  (RWF)</comment>
        <translation>Руанда: франк (RWF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAUDI_ARABIA_RIYAL_SAR</source>
        <comment>SAUDI ARABIA  RIYAL  (SAR)</comment>
        <translation>Саудовская Аравия: риял (SAR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SALOMON_ISLES_DOLLAR_SBD</source>
        <comment>SALOMON ISLES  DOLLAR  (SBD)</comment>
        <translation>Соломоновы Острова: доллар (SBD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SEYCHELLES_RUPEE_SCR</source>
        <comment>SEYCHELLES  RUPEE  (SCR)</comment>
        <translation>Сейшелы: рупия (SCR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SUDAN_DINAR_SDD</source>
        <comment>SUDAN  DINAR  (SDD)</comment>
        <translation>Судан: динар (SDD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SWEDEN_KRONER_SEK</source>
        <comment>SWEDEN  KRONER  (SEK)</comment>
        <translation>Швеция: крона (SEK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SINGAPORE_DOLLAR_SGD</source>
        <comment>SINGAPORE  DOLLAR  (SGD)</comment>
        <translation>Сингапур: доллар (SGD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_HELENS_POUND_SHP</source>
        <comment>ST. HELENS  POUND  (SHP)</comment>
        <translation>Остров Святой Елены: фунт (SHP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SLOVENIA_TOLAR_SIT</source>
        <comment>SLOVENIA  TOLAR  (SIT)</comment>
        <translation>Словения: толар (SIT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SLOVAKIA_KORUNA_SKK</source>
        <comment>SLOVAKIA  KORUNA  (SKK)</comment>
        <translation>Словакия: крона (SKK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SIERRA_LEONE_LEONE_SLL</source>
        <comment>SIERRA LEONE  LEONE  (SLL)</comment>
        <translation>Сьерра-Леоне: леоне (SLL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SOMALIA_SHILLING_SOS</source>
        <comment>SOMALIA  SHILLING  (SOS)</comment>
        <translation>Сомали: шиллинг (SOS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SURINAM_GUILDER_SRG</source>
        <comment>SURINAM  GUILDER  (SRG)</comment>
        <translation>Суринам: гульден (SRG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAO_TOME_PRINCIPE_DOBRA_SRD</source>
        <comment>SÃO TOMÉ; PRINCIPE  DOBRA  (SRD)</comment>
        <translation>Сан-Томе, Принсипи: добра (SRD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EL_SALVADOR_COLON_SVC</source>
        <comment>EL SALVADOR  COLÓN  (SVC)</comment>
        <translation>Сальвадор: колон (SVC)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SYRIA_POUND_SYP</source>
        <comment>SYRIA  POUND  (SYP)</comment>
        <translation>Сирия: фунт (SYP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SWAZILAND_LILANGENI_PL_EMALANGENI_SZL</source>
        <comment>SWAZILAND  LILANGENI (Pl.: EMALANGENI)  (SZL)</comment>
        <translation>Свазиленд: лилангени (SZL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_THAILAND_BAHT_THB</source>
        <comment>THAILAND  BAHT  (THB)</comment>
        <translation>Таиланд: бат (THB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TURKMENISTAN_MANAT_TMM</source>
        <comment>TURKMENISTAN  MANAT  (TMM)</comment>
        <translation>Туркмения: манат (TMM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TUNESIA_DINAR_TND</source>
        <comment>TUNESIA  DINAR  (TND)</comment>
        <translation>Тунис: динар (TND)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TONGA_PAANGA_TOP</source>
        <comment>TONGA  PA'ANGA  (TOP)</comment>
        <translation>Тонга: паанга (TOP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TURKEY_LIRA_TRL</source>
        <comment>TURKEY  LIRA  (TRL)</comment>
        <translation>Турция: лира (TRL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TRINIDAD_TOBAGO_DOLLAR_TTD</source>
        <comment>TRINIDAD; TOBAGO  DOLLAR  (TTD)</comment>
        <translation>Тринидад, Тобаго: доллар (TTD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TAIWAN_DOLLAR_TWD</source>
        <comment>TAIWAN  DOLLAR  (TWD)</comment>
        <translation>Тайвань: доллар (TWD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TANZANIA_SHILLING_TZS</source>
        <comment>TANZANIA  SHILLING  (TZS)</comment>
        <translation>Танзания: шиллинг (TZS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UKRAINE_HRYVNIA_UAH</source>
        <comment>UKRAINE  HRYVNIA  (UAH)</comment>
        <translation>Украина: гривна (UAH)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UGANDA_SHILLING_UGX</source>
        <comment>UGANDA  SHILLING  (UGX)</comment>
        <translation>Уганда: шиллинг (UGX)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_USA_DOLLAR_USD</source>
        <comment>USA  DOLLAR  (USD)</comment>
        <translation>США: доллар (USD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_URUGUAY_PESO_UYU</source>
        <comment>URUGUAY  PESO  (UYU)</comment>
        <translation>Уругвай: песо (UYU)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UZBEKISTAN_SUM_UZS</source>
        <comment>UZBEKISTAN  SUM  (UZS)</comment>
        <translation>Узбекистан: сум (UZS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VENEZUELA_BOLIVAR_VEB</source>
        <comment>VENEZUELA  BOLIVAR  (VEB)</comment>
        <translation>Венесуэла: боливар (VEB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VIETNAM_DONG_VND</source>
        <comment>VIETNAM  DONG  (VND)</comment>
        <translation>Вьетнам: донг (VND)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VANUATU_VATU_VUV</source>
        <comment>VANUATU  VATU  (VUV)</comment>
        <translation>Вануату: вату (VUV)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAMOA_TALA_WST</source>
        <comment>SAMOA  TALA  (WST)</comment>
        <translation>Самоа: тала (WST)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_CHAD_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC CHAD CFA-FRANC  (XAF)</comment>
        <translation>Центральноафриканская Республика, Чад: франк КФА (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_EQUATORIAL_GUINEA_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC EQUATORIAL GUINEA CFA-FRANC  (XAF)</comment>
        <translation>Центральноафриканская Республика, Экваториальная Гвинея: франк КФА (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_GABUN_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC GABUN CFA-FRANC  (XAF)</comment>
        <translation>Центральноафриканская Республика, Габон: франк КФА (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_CAMEROON_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC CAMEROON CFA-FRANC  (XAF)</comment>
        <translation>Центральноафриканская Республика, Камерун: франк КФА (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_CONGO_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC CONGO  CFA-FRANC  (XAF)</comment>
        <translation>Центральноафриканская Республика, Конго: франк КФА (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ANGUILLA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ANGUILLA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Ангилья: восточнокарибский доллар (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ANTIGUA_AND_BARBUDA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ANTIGUA AND BARBUDA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Антигуа и Барбуда: восточнокарибский доллар (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DOMINICA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>DOMINICA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Доминика: восточнокарибский доллар (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GRENADA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>GRENADA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Гренада: восточнокарибский доллар (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MONTSERRAT_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>MONTSERRAT EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Монтсеррат: восточнокарибский доллар (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_KITTS_AND_NEVIS_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ST. KITTS AND NEVIS EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Сент-Китс и Невис: восточнокарибский доллар (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_LUCIA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ST. LUCIA  EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Сент-Люсия: восточнокарибский доллар (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_VINCENT_AND_GRENADINES_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ST. VINCENT AND GRENADINES  EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Сент-Винсент и Гренадины: восточнокарибский доллар (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EUROPEAN_UNION_EUROPEAN_CURRENCY_UNIT_XEU</source>
        <comment>EUROPEAN UNION  EUROPEAN CURRENCY UNIT  (XEU)</comment>
        <translation>Европейский союз: европейская валютная единица (XEU)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BENIN_CFA_FRANC_XOF</source>
        <comment>BENIN  CFA-FRANC  (XOF)</comment>
        <translation>Бенин: франк КФА (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BURKINA_FASO_CFA_FRANC_XOF</source>
        <comment>BURKINA FASO CFA-FRANC  (XOF)</comment>
        <translation>Буркина-Фасо: франк КФА (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IVORY_COAST_CFA_FRANC_XOF</source>
        <comment>IVORY COAST CFA-FRANC  (XOF) </comment>
        <translation>Кот-д’Ивуар: франк КФА (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALI_CFA_FRANC_XOF</source>
        <comment>MALI CFA-FRANC  (XOF)</comment>
        <translation>Мали: франк КФА (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NIGER_CFA_FRANC_XOF</source>
        <comment>NIGER CFA-FRANC  (XOF)</comment>
        <translation>Нигер: франк КФА (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SENEGAL_CFA_FRANC_XOF</source>
        <comment>SENEGAL CFA-FRANC  (XOF) </comment>
        <translation>Сенегал: франк КФА (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TOGO_CFA_FRANC_XOF</source>
        <comment>TOGO  CFA-FRANC  (XOF)</comment>
        <translation>Того: франк КФА (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_YEMEN_RIAL_YER</source>
        <comment>YEMEN  RIAL  (YER)</comment>
        <translation>Йемен: риал (YER)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_YUGOSLAVIA_DINAR_YUN</source>
        <comment>YUGOSLAVIA  DINAR  (YUN)</comment>
        <translation>Югославия: динар (YUN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SOUTH_AFRICA_LESOTHO_RAND_FINANCE_ZAL</source>
        <comment>SOUTH AFRICA; LESOTHO  RAND (FINANCE)  (ZAL)</comment>
        <translation>ЮАР, Лесото: финансовый рэнд (ZAL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SOUTH_AFRICA_LESOTHO_NAMIBIA_RAND_ZAR</source>
        <comment>SOUTH AFRICA; LESOTHO; (NAMIBIA) RAND  (ZAR)</comment>
        <translation>ЮАР, Лесото, Намибия: рэнд (ZAR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAMBIA_KWACHA_ZMK</source>
        <comment>SAMBIA  KWACHA  (ZMK)</comment>
        <translation>Замбия: квача (ZMK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZAIRE_NEW_ZAIRE_ZRN</source>
        <comment>ZAIRE  NEW ZAIRE  (ZRN)</comment>
        <translation>Заир: новый заир (ZRN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZIMBABWE_DOLLAR_ZWD</source>
        <comment>ZIMBABWE  DOLLAR  (ZWD)</comment>
        <translation>Зимбабве: доллар (ZWD)</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallCostsView</name>
    <message>
        <source>TXT_RID_HEADER_CREDIT_AVAILABLE</source>
        <comment>Credit Available</comment>
        <translation>Доступные средства</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_CURRENT_CREDIT_AVAILABLE_IS_2</source>
        <comment>Your current credit available is %1 units</comment>
        <translation>Вам доступно: %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_EXPIRATION_DATE</source>
        <comment>Expiration Date</comment>
        <translation>Срок действия</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_REMAINING_CREDIT_WILL_EXPIRE_ON_1</source>
        <comment>Your remaining credit will expire on %1</comment>
        <translation>Оставшиеся средства действуют до %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_LAST_DEPOSIT</source>
        <comment>Last Deposit</comment>
        <translation>Последний платёж</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_LAST_DEPOSIT_AMOUNT_WAS_1_UNITS</source>
        <comment>Your last deposit amount was %1</comment>
        <translation>Сумма последнего платежа: %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_LAST_CALL</source>
        <comment>Last Call</comment>
        <translation>Последний вызов</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_LAST_CALL_WAS_1_UNITS</source>
        <comment>The cost of your last call was %1</comment>
        <translation>Стоимость последнего вызова: %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DIALED_CALLS</source>
        <comment>Dialed Calls</comment>
        <translation>Исходящие</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_DIALED_CALLS_IS_1_UNITS</source>
        <comment>The cost of your dialed calls is %1</comment>
        <translation>Стоимость исходящих вызовов: %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ANSWERED_CALLS</source>
        <comment>Answered Calls</comment>
        <translation>Входящие</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_ANSWERED_CALLS_IS_1_UNITS</source>
        <comment>The cost of your answered calls is %1</comment>
        <translation>Стоимость входящих вызовов: %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ALL_CALLS</source>
        <comment>All Calls</comment>
        <translation>Все вызовы</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_ALL_CALLS_IS_1_UNITS</source>
        <comment>The cost of all your calls is %1</comment>
        <translation>Стоимость всех вызовов: %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_COSTS</source>
        <comment>Call Costs</comment>
        <translation>Стоимость вызовов</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Назад</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallDataTimesView</name>
    <message>
        <source>TXT_RID_HEADER_DATA_TIMES</source>
        <comment>Data Times</comment>
        <translation>Время данных</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_CURRENT_2_DATA_SESSION_TIME_IS_1</source>
        <comment>The current Data Session time for %2 is %1.</comment>
        <translation>Время текущего сеанса данных для %2: %1.</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_TOTAL_TIME_FOR_ALL_YOUR_GPRS_DATA_SESSIONS_IS_1</source>
        <comment>The total time for all your data sessions is %1.</comment>
        <translation>Общее время всех сеансов данных: %1.</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_RESET</source>
        <comment>Reset</comment>
        <translation>Сброс</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ARE_YOU_SURE_YOU_WANT_TO_RESET_DATA_SESSIONS_TIMER</source>
        <comment>Are you sure you want to reset the data sessions timer?</comment>
        <translation>Сбросить счётчик времени сеансов данных?</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Назад</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallDataVolumesDetailView</name>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_YOUR_SENT_DATA_VOLUME_IS_1</source>
        <comment>Your sent data volume is %1</comment>
        <translation>Объём отправленных данных: %1</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_YOUR_RECEIVED_DATA_VOLUME_IS_1</source>
        <comment>Your received data volume is %1</comment>
        <translation>Объём принятых данных: %1</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_YOUR_TOTAL_DATA_TRANSFER_VOLUME_IS_1</source>
        <comment>Your total data transfer volume is %1</comment>
        <translation>Общий объём переданных данных: %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_VOLUME</source>
        <comment>Data Volume</comment>
        <translation>Объём данных</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Назад</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallDataVolumesView</name>
    <message>
        <source>TXT_RID_HEADER_RESET</source>
        <comment>Reset</comment>
        <translation>Сброс</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ARE_YOU_SURE_YOU_WANT_TO_RESET_DATA_SESSIONS_VOLUME</source>
        <comment>Are you sure you want to reset the data sessions volume?</comment>
        <translation>Сбросить счётчик объёма сеансов данных?</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_VOLUMES</source>
        <comment>Data Volumes</comment>
        <translation>Объём данных</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Назад</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallMeter</name>
    <message>
        <source>TXT_RID_LIST_A_UNITS</source>
        <comment>units</comment>
        <translation>ед.</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AED</source>
        <comment>AED</comment>
        <translation>AED</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AFA</source>
        <comment>AFA</comment>
        <translation>AFA</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ALL</source>
        <comment>ALL</comment>
        <translation>ALL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AMD</source>
        <comment>AMD</comment>
        <translation>AMD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ANG</source>
        <comment>ANG</comment>
        <translation>ANG</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AON</source>
        <comment>AON</comment>
        <translation>AON</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ARS</source>
        <comment>ARS</comment>
        <translation>ARS</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AUD</source>
        <comment>AUD</comment>
        <translation>AUD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AWG</source>
        <comment>AWG</comment>
        <translation>AWG</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AZM</source>
        <comment>AZM</comment>
        <translation>AZM</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BBD</source>
        <comment>BBD</comment>
        <translation>BBD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BDT</source>
        <comment>BDT</comment>
        <translation>BDT</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BEF</source>
        <comment>BEF</comment>
        <translation>BEF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BGN</source>
        <comment>BGN</comment>
        <translation>BGN</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BHD</source>
        <comment>BHD</comment>
        <translation>BHD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BIF</source>
        <comment>BIF</comment>
        <translation>BIF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BMD</source>
        <comment>BMD</comment>
        <translation>BMD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BOB</source>
        <comment>BOB</comment>
        <translation>BOB</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BRL</source>
        <comment>BRL</comment>
        <translation>BRL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BSD</source>
        <comment>BSD</comment>
        <translation>BSD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BTN</source>
        <comment>BTN</comment>
        <translation>BTN</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BWP</source>
        <comment>BWP</comment>
        <translation>BWP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BYR</source>
        <comment>BYR</comment>
        <translation>BYR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BZD</source>
        <comment>BZD</comment>
        <translation>BZD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CAD</source>
        <comment>CAD</comment>
        <translation>CAD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CHF</source>
        <comment>CHF</comment>
        <translation>CHF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CLP</source>
        <comment>CLP</comment>
        <translation>CLP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CNY</source>
        <comment>CNY</comment>
        <translation>CNY</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_COP</source>
        <comment>COP</comment>
        <translation>COP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CRC</source>
        <comment>CRC</comment>
        <translation>CRC</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CUP</source>
        <comment>CUP</comment>
        <translation>CUP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CVE</source>
        <comment>CVE</comment>
        <translation>CVE</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CYP</source>
        <comment>CYP</comment>
        <translation>CYP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CZK</source>
        <comment>CZK</comment>
        <translation>CZK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DEM</source>
        <comment>DEM</comment>
        <translation>DEM</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DJF</source>
        <comment>DJF</comment>
        <translation>DJF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DKK</source>
        <comment>DKK</comment>
        <translation>DKK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DOP</source>
        <comment>DOP</comment>
        <translation>DOP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DZD</source>
        <comment>DZD</comment>
        <translation>DZD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ECS</source>
        <comment>ECS</comment>
        <translation>ECS</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EEK</source>
        <comment>EEK</comment>
        <translation>EEK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EGP</source>
        <comment>EGP</comment>
        <translation>EGP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ESP</source>
        <comment>ESP</comment>
        <translation>ESP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ETB</source>
        <comment>ETB</comment>
        <translation>ETB</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FIM</source>
        <comment>FIM</comment>
        <translation>FIM</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FJD</source>
        <comment>FJD</comment>
        <translation>FJD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FKP</source>
        <comment>FKP</comment>
        <translation>FKP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FRF</source>
        <comment>FRF</comment>
        <translation>FRF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GBP</source>
        <comment>GBP</comment>
        <translation>GBP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GEK</source>
        <comment>GEK</comment>
        <translation>GEK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GHC</source>
        <comment>GHC</comment>
        <translation>GHC</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GIP</source>
        <comment>GIP</comment>
        <translation>GIP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GMD</source>
        <comment>GMD</comment>
        <translation>GMD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GNF</source>
        <comment>GNF</comment>
        <translation>GNF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GRD</source>
        <comment>GRD</comment>
        <translation>GRD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GTQ</source>
        <comment>GTQ</comment>
        <translation>GTQ</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GWP</source>
        <comment>GWP</comment>
        <translation>GWP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GYD</source>
        <comment>GYD</comment>
        <translation>GYD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HKD</source>
        <comment>HKD</comment>
        <translation>HKD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HNL</source>
        <comment>HNL</comment>
        <translation>HNL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HRK</source>
        <comment>HRK</comment>
        <translation>HRK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HTG</source>
        <comment>HTG</comment>
        <translation>HTG</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HUF</source>
        <comment>HUF</comment>
        <translation>HUF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IDR</source>
        <comment>IDR</comment>
        <translation>IDR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IEP</source>
        <comment>IEP</comment>
        <translation>IEP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ILS</source>
        <comment>ILS</comment>
        <translation>ILS</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_INR</source>
        <comment>INR</comment>
        <translation>INR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IQD</source>
        <comment>IQD</comment>
        <translation>IQD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IRR</source>
        <comment>IRR</comment>
        <translation>IRR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ISK</source>
        <comment>ISK</comment>
        <translation>ISK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ITL</source>
        <comment>ITL</comment>
        <translation>ITL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JMD</source>
        <comment>JMD</comment>
        <translation>JMD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JOD</source>
        <comment>JOD</comment>
        <translation>JOD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JPY</source>
        <comment>JPY</comment>
        <translation>JPY</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KES</source>
        <comment>KES</comment>
        <translation>KES</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KGS</source>
        <comment>KGS</comment>
        <translation>KGS</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KHR</source>
        <comment>KHR</comment>
        <translation>KHR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KMF</source>
        <comment>KMF</comment>
        <translation>KMF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KPW</source>
        <comment>KPW</comment>
        <translation>KPW</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KRW</source>
        <comment>KRW</comment>
        <translation>KRW</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KWD</source>
        <comment>KWD</comment>
        <translation>KWD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KYD</source>
        <comment>KYD</comment>
        <translation>KYD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KZT</source>
        <comment>KZT</comment>
        <translation>KZT</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LAK</source>
        <comment>LAK</comment>
        <translation>LAK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LBP</source>
        <comment>LBP</comment>
        <translation>LBP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LKR</source>
        <comment>LKR</comment>
        <translation>LKR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LRD</source>
        <comment>LRD</comment>
        <translation>LRD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LSL</source>
        <comment>LSL</comment>
        <translation>LSL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LTL</source>
        <comment>LTL</comment>
        <translation>LTL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LUF</source>
        <comment>LUF</comment>
        <translation>LUF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LVL</source>
        <comment>LVL</comment>
        <translation>LVL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LYD</source>
        <comment>LYD</comment>
        <translation>LYD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MAD</source>
        <comment>MAD</comment>
        <translation>MAD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MDL</source>
        <comment>MDL</comment>
        <translation>MDL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MGF</source>
        <comment>MGF</comment>
        <translation>MGF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MKD</source>
        <comment>MKD</comment>
        <translation>MKD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MMK</source>
        <comment>MMK</comment>
        <translation>MMK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MNT</source>
        <comment>MNT</comment>
        <translation>MNT</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MOP</source>
        <comment>MOP</comment>
        <translation>MOP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MRO</source>
        <comment>MRO</comment>
        <translation>MRO</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MTL</source>
        <comment>MTL</comment>
        <translation>MTL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MUR</source>
        <comment>MUR</comment>
        <translation>MUR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MVR</source>
        <comment>MVR</comment>
        <translation>MVR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MWK</source>
        <comment>MWK</comment>
        <translation>MWK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MXN</source>
        <comment>MXN</comment>
        <translation>MXN</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MYR</source>
        <comment>MYR</comment>
        <translation>MYR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MZM</source>
        <comment>MZM</comment>
        <translation>MZM</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NAD</source>
        <comment>NAD</comment>
        <translation>NAD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NGN</source>
        <comment>NGN</comment>
        <translation>NGN</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NIO</source>
        <comment>NIO</comment>
        <translation>NIO</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NLG</source>
        <comment>NLG</comment>
        <translation>NLG</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NOK</source>
        <comment>NOK</comment>
        <translation>NOK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NPW</source>
        <comment>NPW</comment>
        <translation>NPW</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NZD</source>
        <comment>NZD</comment>
        <translation>NZD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_OMR</source>
        <comment>OMR</comment>
        <translation>OMR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PAB</source>
        <comment>PAB</comment>
        <translation>PAB</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PEN</source>
        <comment>PEN</comment>
        <translation>PEN</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PGK</source>
        <comment>PGK</comment>
        <translation>PGK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PHP</source>
        <comment>PHP</comment>
        <translation>PHP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PYK</source>
        <comment>PYK</comment>
        <translation>PYK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PLN</source>
        <comment>PLN</comment>
        <translation>PLN</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PTE</source>
        <comment>PTE</comment>
        <translation>PTE</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PYG</source>
        <comment>PYG</comment>
        <translation>PYG</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_QAR</source>
        <comment>QAR</comment>
        <translation>QAR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ROL</source>
        <comment>ROL</comment>
        <translation>ROL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUB</source>
        <comment>RUB</comment>
        <translation>RUB</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RWF</source>
        <comment>RWF</comment>
        <translation>RWF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAR</source>
        <comment>SAR</comment>
        <translation>SAR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SBD</source>
        <comment>SBD</comment>
        <translation>SBD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SCR</source>
        <comment>SCR</comment>
        <translation>SCR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SDD</source>
        <comment>SDD</comment>
        <translation>SDD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SEK</source>
        <comment>SEK</comment>
        <translation>SEK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SGD</source>
        <comment>SGD</comment>
        <translation>SGD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SHP</source>
        <comment>SHP</comment>
        <translation>SHP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SIT</source>
        <comment>SIT</comment>
        <translation>SIT</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SKK</source>
        <comment>SKK</comment>
        <translation>SKK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SLL</source>
        <comment>SLL</comment>
        <translation>SLL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SOS</source>
        <comment>SOS</comment>
        <translation>SOS</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SRG</source>
        <comment>SRG</comment>
        <translation>SRG</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SRD</source>
        <comment>SRD</comment>
        <translation>SRD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SVC</source>
        <comment>SVC</comment>
        <translation>SVC</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SYP</source>
        <comment>SYP</comment>
        <translation>SYP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SZL</source>
        <comment>SZL</comment>
        <translation>SZL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_THB</source>
        <comment>THB</comment>
        <translation>THB</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TMM</source>
        <comment>TMM</comment>
        <translation>TMM</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TND</source>
        <comment>TND</comment>
        <translation>TND</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TOP</source>
        <comment>TOP</comment>
        <translation>TOP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TRL</source>
        <comment>TRL</comment>
        <translation>TRL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TTD</source>
        <comment>TTD</comment>
        <translation>TTD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TWD</source>
        <comment>TWD</comment>
        <translation>TWD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TZS</source>
        <comment>TZS</comment>
        <translation>TZS</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UAH</source>
        <comment>UAH</comment>
        <translation>UAH</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UGX</source>
        <comment>UGX</comment>
        <translation>UGX</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_USD</source>
        <comment>USD</comment>
        <translation>USD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UYU</source>
        <comment>UYU</comment>
        <translation>UYU</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UZS</source>
        <comment>UZS</comment>
        <translation>UZS</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VEB</source>
        <comment>VEB</comment>
        <translation>VEB</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VND</source>
        <comment>VND</comment>
        <translation>VND</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VUV</source>
        <comment>VUV</comment>
        <translation>VUV</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_WST</source>
        <comment>WST</comment>
        <translation>WST</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_XAF</source>
        <comment>XAF</comment>
        <translation>XAF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_XCD</source>
        <comment>XCD</comment>
        <translation>XCD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_XEU</source>
        <comment>XEU</comment>
        <translation>XEU</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_XOF</source>
        <comment>XOF</comment>
        <translation>XOF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_YER</source>
        <comment>YER</comment>
        <translation>YER</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_YUN</source>
        <comment>YUN</comment>
        <translation>YUN</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZAL</source>
        <comment>ZAL</comment>
        <translation>ZAL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZAR</source>
        <comment>ZAR</comment>
        <translation>ZAR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZMK</source>
        <comment>ZMK</comment>
        <translation>ZMK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZRN</source>
        <comment>ZRN</comment>
        <translation>ZRN</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZWD</source>
        <comment>ZWD</comment>
        <translation>ZWD</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallTimesView</name>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_RESET_DIALED_CALLS_TIMER</source>
        <comment>Would you like to reset the Dialed Calls timer?</comment>
        <translation>Сбросить счётчик времени исходящих вызовов?</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_RESET_ANSWERED_CALLS_TIMER</source>
        <comment>Would you like to reset the Answered Calls timer?</comment>
        <translation>Сбросить счётчик времени входящих вызовов?</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_RESET_CIRCUIT_SWITCHING_DATA_CALLS_TIMER</source>
        <comment>Would you like to reset the Circuit Switching Data Calls timer?</comment>
        <translation>Сбросить счётчик времени вызовов данных с коммутацией каналов?</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_RESET_ALL_CALLS_TIMER</source>
        <comment>Would you like to reset the All Calls timer?</comment>
        <translation>Сбросить счётчик времени всех вызовов?</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_RESET_TIMER</source>
        <comment>Reset Timer</comment>
        <translation>Сброс счётчика</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_CURRENT_REQUEST_CANNOT_BE_COMPLETED_WHILE_YOU_ARE_IN_CALLING</source>
        <comment>Current request cannot be completed, while you are in calling. </comment>
        <translation>Это нельзя сделать во время вызова.</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_TIMES</source>
        <comment>Call Times</comment>
        <translation>Время вызовов</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Назад</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Использование: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[параметры]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Параметры:</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Аргументы:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Показывает версию.</translation>
    </message>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Показывает эту справку.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Показывает справку с параметрами Qt.</translation>
    </message>
    <message>
        <source>Unknown option '%1'.</source>
        <translation>Неизвестный параметр «%1».</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Неизвестные параметры: %1.</translation>
    </message>
    <message>
        <source>Missing value after '%1'.</source>
        <translation>После «%1» не хватает значения.</translation>
    </message>
    <message>
        <source>Unexpected value after '%1'.</source>
        <translation>После «%1» значения быть не должно.</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>LTR</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>TXT_RID_SETTING_A_RESET_ALL</source>
        <comment>Reset All</comment>
        <translation>Сбросить всё</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_ALL_CALL_COSTS</source>
        <comment>Reset All Call Costs</comment>
        <translation>Сбросить все вызовы</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_DIALED_CALL_COSTS</source>
        <comment>Reset Dialed Call Costs</comment>
        <translation>Сбросить исходящие</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_ANSWERED_CALL_COSTS</source>
        <comment>Reset Answered Call Costs</comment>
        <translation>Сбросить входящие</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CREDIT_LIMIT</source>
        <comment>Credit Limit</comment>
        <translation>Лимит кредита</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ADJUST_CREDIT_LIMIT</source>
        <comment>Adjust Credit Limit</comment>
        <translation>Изменить лимит</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CURRENCY</source>
        <comment>Currency</comment>
        <translation>Валюта</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CURRENCY_TYPE</source>
        <comment>Currency Type</comment>
        <translation>Тип валюты</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_COST_PER_MINUTE</source>
        <comment>Cost Per Minute</comment>
        <translation>Цена за минуту</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CREDIT_AVAILABLE</source>
        <comment>Credit Available</comment>
        <translation>Доступные средства</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_EXPIRATION_DATE</source>
        <comment>Expiration Date</comment>
        <translation>Срок действия</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LAST_DEPOSIT</source>
        <comment>Last Deposit</comment>
        <translation>Последний платёж</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LAST_CALL_COST</source>
        <comment>Last Call Cost</comment>
        <translation>Последний вызов</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_DIALED_CALLS_COST</source>
        <comment>Dialed Calls Cost</comment>
        <translation>Исходящие вызовы</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ANSWERED_CALLS_COST</source>
        <comment>Answered Calls Cost</comment>
        <translation>Входящие вызовы</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ALL_CALLS_COST</source>
        <comment>All Calls Cost</comment>
        <translation>Все вызовы</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CALL_COST_SETUP</source>
        <comment>Call Cost Setup</comment>
        <translation>Настройка стоимости</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_RECENT_DATA_SESSION</source>
        <comment>Current Data Session</comment>
        <translation>Текущий сеанс данных</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_GPRS_DATA_SESSION_1</source>
        <comment>GPRS Data Session 1</comment>
        <translation>Сеанс GPRS 1</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_GPRS_DATA_SESSION_2</source>
        <comment>GPRS Data Session 2</comment>
        <translation>Сеанс GPRS 2</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_GPRS_DATA_SESSION_3</source>
        <comment>GPRS Data Session 3</comment>
        <translation>Сеанс GPRS 3</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_ALL_DATA_SESSIONS</source>
        <comment>All Data Sessions</comment>
        <translation>Все сеансы данных</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_TOTAL_TIME</source>
        <comment>Total Time</comment>
        <translation>Общее время</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_ALL_DATA_SESSIONS</source>
        <comment>Reset All Data Sessions</comment>
        <translation>Сбросить все сеансы</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_SENT</source>
        <comment>Sent</comment>
        <translation>Отправлено</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RECEIVED</source>
        <comment>Received</comment>
        <translation>Принято</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_SUM</source>
        <comment>Sum</comment>
        <translation>Всего</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_TOTAL_DATA_TRANSFERRED</source>
        <comment>Total Data Transferred</comment>
        <translation>Всего передано</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_GPRS_DATA_SESSION_1</source>
        <comment>GPRS Data Session 1</comment>
        <translation>Сеанс GPRS 1</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_GPRS_DATA_SESSION_2</source>
        <comment>GPRS Data Session 2</comment>
        <translation>Сеанс GPRS 2</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_GPRS_DATA_SESSION_3</source>
        <comment>GPRS Data Session 3</comment>
        <translation>Сеанс GPRS 3</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LAST_CALL</source>
        <comment>Last Call</comment>
        <translation>Последний вызов</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_DIALED_CALLS</source>
        <comment>Dialed Calls</comment>
        <translation>Исходящие</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ANSWERED_CALLS</source>
        <comment>Answered Calls</comment>
        <translation>Входящие</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CIRCUIT_SWITCH_DATA_CALLS</source>
        <comment>Data Calls</comment>
        <translation>Вызовы данных</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ALL_CALLS</source>
        <comment>All Calls</comment>
        <translation>Все вызовы</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LIFETIME_CALLS</source>
        <comment>Lifetime Calls</comment>
        <translation>Всего вызовов</translation>
    </message>
</context>
<context>
    <name>ReadFile</name>
    <message>
        <source>there is none</source>
        <translation>его нет</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>это не обычный файл</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>он больше %1 МиБ</translation>
    </message>
</context>
<context>
    <name>SETUP_SECURITY_Util</name>
    <message>
        <source>TXT_RID_HEADER_PIN1</source>
        <comment>PIN1</comment>
        <translation>PIN1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ENTER_PIN1</source>
        <comment>Enter PIN1</comment>
        <translation>Введите PIN1</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_WRONG_PIN1</source>
        <comment>Wrong PIN1</comment>
        <translation>Неверный PIN1</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_PIN1_IS_BLOCKED</source>
        <comment>PIN1 is blocked. Only PUK1 can unblock it.</comment>
        <translation>PIN1 заблокирован. Его разблокирует только PUK1.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_SIM_CANNOT_BE_ASKED_PIN1</source>
        <comment>The SIM card cannot be asked for PIN1.</comment>
        <translation>SIM-карта не может проверить PIN1.</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_PIN2</source>
        <comment>PIN2</comment>
        <translation>PIN2</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ENTER_PIN2</source>
        <comment>Enter PIN2</comment>
        <translation>Введите PIN2</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_WRONG_PIN2</source>
        <comment>Wrong PIN2</comment>
        <translation>Неверный PIN2</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_PIN2_IS_BLOCKED</source>
        <comment>PIN2 is blocked. Only PUK2 can unblock it.</comment>
        <translation>PIN2 заблокирован. Его разблокирует только PUK2.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_SIM_CANNOT_BE_ASKED_PIN2</source>
        <comment>The SIM card cannot be asked for PIN2.</comment>
        <translation>SIM-карта не может проверить PIN2.</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_OK</source>
        <comment>OK</comment>
        <translation>ОК</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_CANCEL</source>
        <comment>Cancel</comment>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_TRIES_LEFT_1</source>
        <comment>Tries left: %1</comment>
        <translation>Попыток: %1</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_4_TO_8_DIGITS</source>
        <comment>4 to 8 digits</comment>
        <translation>От 4 до 8 цифр</translation>
    </message>
</context>
<context>
    <name>ZMessageDlg</name>
    <message>
        <source>TXT_RID_SOFTKEY_YES</source>
        <comment>Yes</comment>
        <translation>Да</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_NO</source>
        <comment>No</comment>
        <translation>Нет</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_OK</source>
        <comment>OK</comment>
        <translation>ОК</translation>
    </message>
</context>
<context>
    <name>ZNoticeDlg</name>
    <message>
        <source>TXT_RID_SOFTKEY_OK</source>
        <comment>OK</comment>
        <translation>ОК</translation>
    </message>
</context>
<context>
    <name>ZSingleCaptureDlg</name>
    <message>
        <source>TXT_RID_SOFTKEY_OK</source>
        <comment>OK</comment>
        <translation>ОК</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_CANCEL</source>
        <comment>Cancel</comment>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>ZSingleSelectDlg</name>
    <message>
        <source>TXT_RID_SOFTKEY_SELECT</source>
        <comment>Select</comment>
        <translation>Выбрать</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_CANCEL</source>
        <comment>Cancel</comment>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>ZSoftKey</name>
    <message>
        <source>TXT_RID_LABEL_LEFT_SOFTKEY</source>
        <comment>Left softkey</comment>
        <translation>Левая клавиша</translation>
    </message>
    <message>
        <source>TXT_RID_LABEL_RIGHT_SOFTKEY</source>
        <comment>Right softkey</comment>
        <translation>Правая клавиша</translation>
    </message>
</context>
<context>
    <name>handset</name>
    <message>
        <source>The call log is damaged. The next start begins a new one, with what can be read of it.</source>
        <translation>Журнал вызовов повреждён. При следующем запуске будет начат новый, с тем, что удастся прочитать.</translation>
    </message>
    <message>
        <source>The call log is damaged, and that cannot be noted for the next start.</source>
        <translation>Журнал вызовов повреждён, и это не удаётся отметить для следующего запуска.</translation>
    </message>
    <message>
        <source>Copying the call log</source>
        <translation>Копирование журнала вызовов</translation>
    </message>
    <message>
        <source>Reading the damaged call log once more</source>
        <translation>Повторное чтение повреждённого журнала</translation>
    </message>
    <message>
        <source>Writing the new call log to the disk</source>
        <translation>Запись нового журнала на диск</translation>
    </message>
    <message>
        <source>Checking the new call log</source>
        <translation>Проверка нового журнала</translation>
    </message>
    <message>
        <source>Looking for the end of the damage</source>
        <translation>Поиск конца повреждения</translation>
    </message>
    <message>
        <source>Counting what was read</source>
        <translation>Подсчёт прочитанного</translation>
    </message>
    <message>
        <source>Bringing the call log up to date</source>
        <translation>Обновление журнала вызовов</translation>
    </message>
    <message>
        <source>belongs to another user</source>
        <translation>принадлежит другому пользователю</translation>
    </message>
    <message>
        <source>may be written by other users</source>
        <translation>доступен для записи другим пользователям</translation>
    </message>
    <message>
        <source>The state directory "%1" %2, who can change what is kept in it.</source>
        <translation>Каталог состояния "%1" %2; его содержимое могут изменить.</translation>
    </message>
    <message>
        <source>The state directory "%1" lies in one that may be written by other users, who can put another in its place.</source>
        <translation>Каталог состояния "%1" лежит в каталоге, доступном для записи другим пользователям; они могут подменить его.</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>Ожидается %1</translation>
    </message>
    <message>
        <source>another process</source>
        <translation>другой процесс</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>сбой</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>initializing</source>
        <translation>инициализация</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>заблокирован</translation>
    </message>
    <message>
        <source>locked: PIN</source>
        <translation>заблокирован: PIN</translation>
    </message>
    <message>
        <source>locked: PIN2</source>
        <translation>заблокирован: PIN2</translation>
    </message>
    <message>
        <source>locked: PUK</source>
        <translation>заблокирован: PUK</translation>
    </message>
    <message>
        <source>locked: PUK2</source>
        <translation>заблокирован: PUK2</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>выключен</translation>
    </message>
    <message>
        <source>disabling</source>
        <translation>выключается</translation>
    </message>
    <message>
        <source>enabling</source>
        <translation>включается</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>включён</translation>
    </message>
    <message>
        <source>searching</source>
        <translation>поиск сети</translation>
    </message>
    <message>
        <source>registered</source>
        <translation>зарегистрирован</translation>
    </message>
    <message>
        <source>disconnecting</source>
        <translation>отключается</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>подключается</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>подключён</translation>
    </message>
    <message>
        <source>unregistered</source>
        <translation>не зарегистрирован</translation>
    </message>
    <message>
        <source>denied</source>
        <translation>отклонён сетью</translation>
    </message>
    <message>
        <source>roaming</source>
        <translation>в роуминге</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>не в сети</translation>
    </message>
    <message>
        <source>%1 is not running</source>
        <translation>%1 не запущен</translation>
    </message>
    <message>
        <source>asking %1</source>
        <translation>запрос к %1</translation>
    </message>
    <message>
        <source>no modem</source>
        <translation>модема нет</translation>
    </message>
    <message>
        <source>%1 does not let this user talk to it</source>
        <translation>%1 не разрешает этому пользователю обращаться к нему</translation>
    </message>
    <message>
        <source>%1 does not tell its modems</source>
        <translation>%1 не сообщает свои модемы</translation>
    </message>
    <message>
        <source>There is no system bus: %1</source>
        <translation>Нет системной шины: %1</translation>
    </message>
    <message>
        <source>ModemManager does not answer</source>
        <translation>ModemManager не отвечает</translation>
    </message>
    <message>
        <source>The call cannot be made</source>
        <translation>Не удаётся позвонить</translation>
    </message>
    <message>
        <source>The call cannot be made: %1.</source>
        <translation>Не удаётся позвонить: %1.</translation>
    </message>
    <message>
        <source>The call cannot be answered</source>
        <translation>Не удаётся ответить на вызов</translation>
    </message>
    <message>
        <source>The call cannot be ended</source>
        <translation>Не удаётся завершить вызов</translation>
    </message>
    <message>
        <source>it is busy</source>
        <translation>он занят</translation>
    </message>
    <message>
        <source>it is not ready for that</source>
        <translation>он к этому не готов</translation>
    </message>
    <message>
        <source>the modem cannot do that</source>
        <translation>модем этого не умеет</translation>
    </message>
    <message>
        <source>that is no number to call</source>
        <translation>на такой номер нельзя позвонить</translation>
    </message>
    <message>
        <source>there is no network</source>
        <translation>нет сети</translation>
    </message>
    <message>
        <source>this user may not</source>
        <translation>этому пользователю нельзя</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>он не отвечает</translation>
    </message>
    <message>
        <source>it failed (%1)</source>
        <translation>не удалось (%1)</translation>
    </message>
    <message>
        <source>The network has not put the call through.</source>
        <translation>Сеть не установила соединение.</translation>
    </message>
    <message>
        <source>The telephone does not dial: %1.</source>
        <translation>Телефон не набирает: %1.</translation>
    </message>
    <message>
        <source>The telephone does not take the call: %1.</source>
        <translation>Телефон не отвечает на вызов: %1.</translation>
    </message>
    <message>
        <source>The telephone does not end the call: %1.</source>
        <translation>Телефон не завершает вызов: %1.</translation>
    </message>
</context>
<context>
    <name>host::AccountSection</name>
    <message>
        <source>Nothing has been paid in.</source>
        <translation>Платежей ещё не было.</translation>
    </message>
    <message>
        <source>Credit: %1</source>
        <translation>Средства: %1</translation>
    </message>
    <message>
        <source>Last deposit: %1, good until %2</source>
        <translation>Последний платёж: %1, действует до %2</translation>
    </message>
    <message>
        <source>Prepaid account</source>
        <translation>Предоплаченный счёт</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Средства</translation>
    </message>
    <message>
        <source>Last deposit</source>
        <translation>Последний платёж</translation>
    </message>
    <message>
        <source>Amount to pay in</source>
        <translation>Сумма платежа</translation>
    </message>
    <message>
        <source>In units or in the currency, as costs are</source>
        <translation>В единицах или в валюте, как и стоимость</translation>
    </message>
    <message>
        <source>Why nothing was paid in</source>
        <translation>Почему платёж не принят</translation>
    </message>
    <message>
        <source>Good until</source>
        <translation>Действует до</translation>
    </message>
    <message>
        <source>Until when the deposit is good: year, month, day</source>
        <translation>До какого дня действует платёж: год, месяц, день</translation>
    </message>
    <message>
        <source>&amp;Top up</source>
        <translation>&amp;Пополнить</translation>
    </message>
    <message>
        <source>Pays the amount in</source>
        <translation>Вносит сумму на счёт</translation>
    </message>
    <message>
        <source>until</source>
        <translation>до</translation>
    </message>
</context>
<context>
    <name>host::CallNotice</name>
    <message>
        <source>Dialing</source>
        <translation>Набор номера</translation>
    </message>
    <message>
        <source>Incoming call</source>
        <translation>Входящий вызов</translation>
    </message>
    <message>
        <source>Call waiting</source>
        <translation>Ожидающий вызов</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>На удержании</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Соединение</translation>
    </message>
    <message>
        <source>Number withheld</source>
        <translation>Номер скрыт</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Вызов</translation>
    </message>
    <message>
        <source>Number to dial</source>
        <translation>Набираемый номер</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Вызов завершён</translation>
    </message>
    <message>
        <source>Not answered</source>
        <translation>Без ответа</translation>
    </message>
</context>
<context>
    <name>host::CallsModel</name>
    <message>
        <source>Dialed, not answered</source>
        <translation>Исходящий, без ответа</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Пропущенный</translation>
    </message>
    <message>
        <source>Data call</source>
        <translation>Вызов данных</translation>
    </message>
    <message>
        <source>Dialed</source>
        <translation>Исходящий</translation>
    </message>
    <message>
        <source>Answered</source>
        <translation>Входящий</translation>
    </message>
    <message>
        <source>number withheld</source>
        <translation>номер скрыт</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Направление</translation>
    </message>
    <message>
        <source>Number and time</source>
        <translation>Номер и время</translation>
    </message>
    <message>
        <source>Duration and cost</source>
        <translation>Длительность и стоимость</translation>
    </message>
    <message>
        <source>units</source>
        <translation>единицы</translation>
    </message>
</context>
<context>
    <name>host::CostSection</name>
    <message>
        <source>not available</source>
        <translation>недоступно</translation>
    </message>
    <message>
        <source>units</source>
        <translation>единицы</translation>
    </message>
    <message>
        <source>Costs</source>
        <translation>Стоимость</translation>
    </message>
    <message>
        <source>Costs are in</source>
        <translation>Стоимость в</translation>
    </message>
    <message>
        <source>the currency</source>
        <translation>валюте</translation>
    </message>
    <message>
        <source>Price of a unit</source>
        <translation>Цена единицы</translation>
    </message>
    <message>
        <source>The price of a unit, as 0.23</source>
        <translation>Цена единицы, например 0.23</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Валюта</translation>
    </message>
    <message>
        <source>The currency's code, at most three characters</source>
        <translation>Код валюты, не больше трёх знаков</translation>
    </message>
    <message>
        <source>Credit limit</source>
        <translation>Лимит кредита</translation>
    </message>
    <message>
        <source>Cost of the call</source>
        <translation>Стоимость вызова</translation>
    </message>
    <message>
        <source>Why the costs were not set</source>
        <translation>Почему стоимость не настроена</translation>
    </message>
    <message>
        <source>Set &amp;price</source>
        <translation>&amp;Задать цену</translation>
    </message>
    <message>
        <source>Writes price and currency to the SIM card</source>
        <translation>Записывает цену и валюту на SIM-карту</translation>
    </message>
    <message>
        <source>This call</source>
        <translation>Этот вызов</translation>
    </message>
    <message>
        <source>Last call</source>
        <translation>Последний вызов</translation>
    </message>
    <message>
        <source>off</source>
        <translation>выключен</translation>
    </message>
    <message>
        <source>%1; units left: %2</source>
        <translation>%1; осталось единиц: %2</translation>
    </message>
    <message>
        <source>The modem's advice of charge says what calls cost.</source>
        <translation>Сколько стоят вызовы, сообщает модем.</translation>
    </message>
    <message>
        <source>This telephone charges no calls by itself.</source>
        <translation>Этот телефон сам не тарифицирует вызовы.</translation>
    </message>
</context>
<context>
    <name>host::Display</name>
    <message>
        <source>Display of the phone</source>
        <translation>Экран телефона</translation>
    </message>
</context>
<context>
    <name>host::FailuresSection</name>
    <message>
        <source>Failures</source>
        <translation>Сбои</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Операция</translation>
    </message>
    <message>
        <source>Let it &amp;fail</source>
        <translation>&amp;Вызвать сбой</translation>
    </message>
    <message>
        <source>From now on the operation only answers the code</source>
        <translation>Теперь операция отвечает только этим кодом</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Убрать</translation>
    </message>
    <message>
        <source>The chosen operation works again</source>
        <translation>Выбранная операция снова работает</translation>
    </message>
    <message>
        <source>Remove a&amp;ll</source>
        <translation>Убрать &amp;все</translation>
    </message>
    <message>
        <source>Every operation works again</source>
        <translation>Все операции снова работают</translation>
    </message>
    <message>
        <source>What the phone's libraries ask of the telephone</source>
        <translation>Что библиотеки телефона у него запрашивают</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Код</translation>
    </message>
    <message>
        <source>What the operation answers: a name, or a number; not Success</source>
        <translation>Что отвечает операция: имя или число; не Success</translation>
    </message>
    <message>
        <source>Operations that fail</source>
        <translation>Операции со сбоем</translation>
    </message>
    <message>
        <source>Failing now</source>
        <translation>Сейчас со сбоем</translation>
    </message>
</context>
<context>
    <name>host::FiguresSection</name>
    <message>
        <source>Last call</source>
        <translation>Последний вызов</translation>
    </message>
    <message>
        <source>Dialed calls</source>
        <translation>Исходящие</translation>
    </message>
    <message>
        <source>Answered calls</source>
        <translation>Входящие</translation>
    </message>
    <message>
        <source>Data calls</source>
        <translation>Вызовы данных</translation>
    </message>
    <message>
        <source>All calls</source>
        <translation>Все вызовы</translation>
    </message>
    <message>
        <source>Lifetime calls</source>
        <translation>Всего вызовов</translation>
    </message>
    <message>
        <source>Call timers</source>
        <translation>Счётчики вызовов</translation>
    </message>
    <message>
        <source>Add a &amp;ready-made history</source>
        <translation>Добавить готовую &amp;историю</translation>
    </message>
    <message>
        <source>Adds a dozen calls of the last days to the call log</source>
        <translation>Добавляет в журнал дюжину вызовов за последние дни</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>недоступно</translation>
    </message>
</context>
<context>
    <name>host::Keypad</name>
    <message>
        <source>Call</source>
        <translation>Вызов</translation>
    </message>
    <message>
        <source>Hang up</source>
        <translation>Отбой</translation>
    </message>
    <message>
        <source>Left softkey</source>
        <translation>Левая клавиша</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Right softkey</source>
        <translation>Правая клавиша</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Выбрать</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Стереть</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>Звёздочка</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>Решётка</translation>
    </message>
    <message>
        <source>Keypad</source>
        <translation>Клавиатура</translation>
    </message>
</context>
<context>
    <name>host::Line</name>
    <message>
        <source>Dialing</source>
        <translation>Набор номера</translation>
    </message>
    <message>
        <source>Ringing</source>
        <translation>Звонит</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Ожидает</translation>
    </message>
    <message>
        <source>On hold %1</source>
        <translation>Удержание %1</translation>
    </message>
    <message>
        <source>Connected %1</source>
        <translation>Соединение %1</translation>
    </message>
    <message>
        <source>No modem</source>
        <translation>Нет модема</translation>
    </message>
    <message>
        <source>number withheld</source>
        <translation>номер скрыт</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Свободна</translation>
    </message>
    <message>
        <source>The credit limit is reached in %1 s.</source>
        <translation>Лимит кредита будет достигнут через %1 с.</translation>
    </message>
    <message>
        <source>The credit is used up in %1 s.</source>
        <translation>Средства закончатся через %1 с.</translation>
    </message>
    <message>
        <source>The telephone has ended the call: the credit limit is reached.</source>
        <translation>Телефон завершил вызов: достигнут лимит кредита.</translation>
    </message>
    <message>
        <source>The telephone has ended the call: the credit is used up.</source>
        <translation>Телефон завершил вызов: средства закончились.</translation>
    </message>
    <message>
        <source>This telephone cannot be driven from here.</source>
        <translation>Этим телефоном нельзя управлять отсюда.</translation>
    </message>
    <message>
        <source>data call</source>
        <translation>вызов данных</translation>
    </message>
    <message>
        <source>voice call</source>
        <translation>голосовой вызов</translation>
    </message>
    <message>
        <source>The call log cannot be written. The end of a call or a packet-data session is kept in memory, and written as soon as it can be.</source>
        <translation>Не удаётся записать журнал вызовов. Конец вызова или сеанса данных хранится в памяти и будет записан, как только это станет возможно.</translation>
    </message>
</context>
<context>
    <name>host::LineSection</name>
    <message>
        <source>&amp;Dial</source>
        <translation>&amp;Набрать</translation>
    </message>
    <message>
        <source>Calls the number from this phone</source>
        <translation>Звонит на номер с этого телефона</translation>
    </message>
    <message>
        <source>&amp;Other side answers</source>
        <translation>&amp;Другая сторона отвечает</translation>
    </message>
    <message>
        <source>The called side answers; the call is connected</source>
        <translation>Вызванная сторона отвечает; соединение установлено</translation>
    </message>
    <message>
        <source>Dial d&amp;ata call</source>
        <translation>Вызов д&amp;анных</translation>
    </message>
    <message>
        <source>Sets up a circuit-switched data call to the number</source>
        <translation>Устанавливает с номером вызов данных с коммутацией каналов</translation>
    </message>
    <message>
        <source>&amp;Incoming call</source>
        <translation>&amp;Входящий вызов</translation>
    </message>
    <message>
        <source>The number calls this phone; empty for a withheld number</source>
        <translation>Номер звонит на этот телефон; пусто, если номер скрыт</translation>
    </message>
    <message>
        <source>&amp;Hang up</source>
        <translation>&amp;Отбой</translation>
    </message>
    <message>
        <source>Ends the call on the line, whatever its state</source>
        <translation>Завершает вызов на линии, в любом его состоянии</translation>
    </message>
    <message>
        <source>A&amp;nswer</source>
        <translation>О&amp;тветить</translation>
    </message>
    <message>
        <source>Answers the incoming call; the call is connected</source>
        <translation>Отвечает на входящий вызов; соединение установлено</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Линия</translation>
    </message>
    <message>
        <source>State of the line</source>
        <translation>Состояние линии</translation>
    </message>
    <message>
        <source>End of charging</source>
        <translation>Конец тарификации</translation>
    </message>
    <message>
        <source>What is not in the call log yet</source>
        <translation>Чего ещё нет в журнале вызовов</translation>
    </message>
    <message>
        <source>What the telephone has told</source>
        <translation>Что сообщил телефон</translation>
    </message>
    <message>
        <source>Digits, +, * and #</source>
        <translation>Цифры, +, * и #</translation>
    </message>
    <message>
        <source>Clear the number</source>
        <translation>Стереть номер</translation>
    </message>
    <message>
        <source>N&amp;umber</source>
        <translation>Но&amp;мер</translation>
    </message>
</context>
<context>
    <name>host::MenuScreen</name>
    <message>
        <source>TXT_RID_HEADER_RECENT_CALLS</source>
        <comment>Recent Calls</comment>
        <translation>Последние вызовы</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_OPEN</source>
        <comment>Open</comment>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_EXIT</source>
        <comment>Exit</comment>
        <translation>Выход</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_TIMES</source>
        <comment>Call Times</comment>
        <translation>Время вызовов</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_COSTS</source>
        <comment>Call Costs</comment>
        <translation>Стоимость вызовов</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_TIMES</source>
        <comment>Data Times</comment>
        <translation>Время данных</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_VOLUMES</source>
        <comment>Data Volumes</comment>
        <translation>Объём данных</translation>
    </message>
</context>
<context>
    <name>host::ModemSection</name>
    <message>
        <source>call times</source>
        <translation>время вызовов</translation>
    </message>
    <message>
        <source>all calls</source>
        <translation>все вызовы</translation>
    </message>
    <message>
        <source>data calls</source>
        <translation>вызовы данных</translation>
    </message>
    <message>
        <source>data sessions</source>
        <translation>сеансы данных</translation>
    </message>
    <message>
        <source>advice of charge</source>
        <translation>сведения о стоимости</translation>
    </message>
    <message>
        <source>PIN2</source>
        <translation>PIN2</translation>
    </message>
    <message>
        <source>credit</source>
        <translation>средства</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>ничего</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>соединено</translation>
    </message>
    <message>
        <source>, %1 B sent, %2 B received</source>
        <translation>, отправлено %1 Б, принято %2 Б</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>не соединено</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>Modem</source>
        <translation>Модем</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Сеть</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Данные</translation>
    </message>
    <message>
        <source>Charged by</source>
        <translation>Тарифицирует</translation>
    </message>
    <message>
        <source>Recorded by</source>
        <translation>Записывает</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Недоступно</translation>
    </message>
    <message>
        <source>%1, through %2</source>
        <translation>%1, через %2</translation>
    </message>
    <message>
        <source>the modem's advice of charge</source>
        <translation>сведения модема о стоимости</translation>
    </message>
    <message>
        <source>the tariff of this telephone</source>
        <translation>тариф этого телефона</translation>
    </message>
    <message>
        <source>this window</source>
        <translation>это окно</translation>
    </message>
    <message>
        <source>another process</source>
        <translation>другой процесс</translation>
    </message>
    <message>
        <source>nobody: the call log cannot be written</source>
        <translation>никто: не удаётся записать журнал вызовов</translation>
    </message>
</context>
<context>
    <name>host::OpeningProgress</name>
    <message>
        <source>Opening the telephone</source>
        <translation>Телефон открывается</translation>
    </message>
    <message>
        <source>What is being done</source>
        <translation>Что сейчас делается</translation>
    </message>
    <message>
        <source>How far it is</source>
        <translation>Сколько уже сделано</translation>
    </message>
</context>
<context>
    <name>host::PacketSection</name>
    <message>
        <source>%1 B sent, %2 B received</source>
        <translation>отправлено %1 Б, принято %2 Б</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>пусто</translation>
    </message>
    <message>
        <source>%1 (id %2), %3
%4</source>
        <translation>%1 (номер %2), %3
%4</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>недоступно</translation>
    </message>
    <message>
        <source>%1, %2 B
%3</source>
        <translation>%1, %2 Б
%3</translation>
    </message>
    <message>
        <source>Packet data</source>
        <translation>Пакетные данные</translation>
    </message>
    <message>
        <source>Access point name</source>
        <translation>Имя точки доступа</translation>
    </message>
    <message>
        <source>1 to 101 characters</source>
        <translation>От 1 до 101 знака</translation>
    </message>
    <message>
        <source>Bytes sent each second</source>
        <translation>Байт отправляется каждую секунду</translation>
    </message>
    <message>
        <source>Bytes received each second</source>
        <translation>Байт принимается каждую секунду</translation>
    </message>
    <message>
        <source>&amp;Start session</source>
        <translation>&amp;Начать сеанс</translation>
    </message>
    <message>
        <source>Begins a session, which counts bytes and time</source>
        <translation>Начинает сеанс, который считает байты и время</translation>
    </message>
    <message>
        <source>Sto&amp;p session</source>
        <translation>&amp;Завершить сеанс</translation>
    </message>
    <message>
        <source>Ends the session</source>
        <translation>Завершает сеанс</translation>
    </message>
    <message>
        <source>Why the session was not changed</source>
        <translation>Почему сеанс не изменён</translation>
    </message>
    <message>
        <source>All sessions</source>
        <translation>Все сеансы</translation>
    </message>
    <message>
        <source>Bytes sent a second</source>
        <translation>Отправляется байт в секунду</translation>
    </message>
    <message>
        <source>Bytes received a second</source>
        <translation>Принимается байт в секунду</translation>
    </message>
    <message>
        <source>Session %1</source>
        <translation>Сеанс %1</translation>
    </message>
    <message>
        <source>Session %1:</source>
        <translation>Сеанс %1:</translation>
    </message>
    <message>
        <source>All sessions:</source>
        <translation>Все сеансы:</translation>
    </message>
    <message>
        <source>S&amp;end update</source>
        <translation>&amp;Отправить обновление</translation>
    </message>
    <message>
        <source>Tells the screens that the figures have changed</source>
        <translation>Сообщает экранам, что значения изменились</translation>
    </message>
</context>
<context>
    <name>host::Panel</name>
    <message>
        <source>Sides of the telephone</source>
        <translation>Стороны телефона</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>Звонки</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Цены</translation>
    </message>
    <message>
        <source>SIM</source>
        <translation>SIM</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Данные</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>Сбои</translation>
    </message>
</context>
<context>
    <name>host::PhoneWindow</name>
    <message>
        <source>Recent Calls</source>
        <translation>Последние вызовы</translation>
    </message>
</context>
<context>
    <name>host::Pin2Section</name>
    <message>
        <source>Blocked for good.</source>
        <translation>Заблокирован навсегда.</translation>
    </message>
    <message>
        <source>Blocked: only PUK2 helps.</source>
        <translation>Заблокирован: поможет только PUK2.</translation>
    </message>
    <message>
        <source>Off: nobody is asked for it.</source>
        <translation>Выключен: его ни у кого не спрашивают.</translation>
    </message>
    <message>
        <source>On, and entered.</source>
        <translation>Включён, и введён.</translation>
    </message>
    <message>
        <source>On, not entered.</source>
        <translation>Включён, не введён.</translation>
    </message>
    <message>
        <source>Tries left: PIN2 %1, PUK2 %2.</source>
        <translation>Осталось попыток: PIN2 %1, PUK2 %2.</translation>
    </message>
    <message>
        <source>PIN2</source>
        <translation>PIN2</translation>
    </message>
    <message>
        <source>State of PIN2</source>
        <translation>Состояние PIN2</translation>
    </message>
    <message>
        <source>PIN2 is on</source>
        <translation>PIN2 включён</translation>
    </message>
    <message>
        <source>Four to eight digits</source>
        <translation>От четырёх до восьми цифр</translation>
    </message>
    <message>
        <source>PUK2</source>
        <translation>PUK2</translation>
    </message>
    <message>
        <source>Eight digits</source>
        <translation>Восемь цифр</translation>
    </message>
    <message>
        <source>New PIN2</source>
        <translation>Новый PIN2</translation>
    </message>
    <message>
        <source>What came of it</source>
        <translation>Что получилось</translation>
    </message>
    <message>
        <source>The phone asks for it where a file is written with PIN2</source>
        <translation>Телефон спрашивает его, когда файл записывается с PIN2</translation>
    </message>
    <message>
        <source>&amp;Switch off and on</source>
        <translation>Выключить и &amp;включить</translation>
    </message>
    <message>
        <source>Forgets that PIN2 has been entered</source>
        <translation>Забывает, что PIN2 был введён</translation>
    </message>
    <message>
        <source>&amp;Enter</source>
        <translation>Вв&amp;ести</translation>
    </message>
    <message>
        <source>Presents PIN2 to the card, as the phone does; a wrong one costs a try</source>
        <translation>Предъявляет PIN2 карте, как телефон; неверный стоит одной попытки</translation>
    </message>
    <message>
        <source>Un&amp;block</source>
        <translation>&amp;Разблокировать</translation>
    </message>
    <message>
        <source>Sets the new PIN2 and gives all tries back</source>
        <translation>Задаёт новый PIN2 и возвращает все попытки</translation>
    </message>
    <message>
        <source>PIN2 has been entered.</source>
        <translation>PIN2 введён.</translation>
    </message>
    <message>
        <source>Wrong PIN2.</source>
        <translation>Неверный PIN2.</translation>
    </message>
    <message>
        <source>The new PIN2 counts.</source>
        <translation>Действует новый PIN2.</translation>
    </message>
    <message>
        <source>Wrong PUK2.</source>
        <translation>Неверный PUK2.</translation>
    </message>
</context>
<context>
    <name>host::RecentCallsSection</name>
    <message>
        <source>Recent calls</source>
        <translation>Последние вызовы</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>Deletes the chosen call; the totals stay</source>
        <translation>Удаляет выбранный вызов; итоги остаются</translation>
    </message>
    <message>
        <source>Delete a&amp;ll ...</source>
        <translation>Удалить &amp;все ...</translation>
    </message>
    <message>
        <source>Deletes every call that is over; the totals stay</source>
        <translation>Удаляет все завершённые вызовы; итоги остаются</translation>
    </message>
    <message>
        <source>Why the calls were not read or deleted</source>
        <translation>Почему вызовы не прочитаны или не удалены</translation>
    </message>
    <message>
        <source>The call log cannot be read.</source>
        <translation>Не удаётся прочитать журнал вызовов.</translation>
    </message>
    <message>
        <source>Delete all calls that are over? The totals stay as they are.</source>
        <translation>Удалить все завершённые вызовы? Итоги останутся как есть.</translation>
    </message>
    <message>
        <source>&amp;Delete all</source>
        <translation>Удалить &amp;все</translation>
    </message>
</context>
<context>
    <name>host::SimFilesSection</name>
    <message>
        <source>%1  =  %2 units</source>
        <translation>%1  =  %2 единиц</translation>
    </message>
    <message>
        <source>  (newest)</source>
        <translation>  (самая новая)</translation>
    </message>
    <message>
        <source>%1  =  no limit</source>
        <translation>%1  =  без лимита</translation>
    </message>
    <message>
        <source>no currency</source>
        <translation>без валюты</translation>
    </message>
    <message>
        <source>%1  =  %2, %3 a unit</source>
        <translation>%1  =  %2, %3 за единицу</translation>
    </message>
    <message>
        <source>call meter</source>
        <translation>счётчик вызовов</translation>
    </message>
    <message>
        <source>maximum</source>
        <translation>максимум</translation>
    </message>
    <message>
        <source>price</source>
        <translation>цена</translation>
    </message>
    <message>
        <source>freely</source>
        <translation>свободно</translation>
    </message>
    <message>
        <source>with PIN2</source>
        <translation>с PIN2</translation>
    </message>
    <message>
        <source>never</source>
        <translation>никогда</translation>
    </message>
    <message>
        <source>Files of the SIM card</source>
        <translation>Файлы SIM-карты</translation>
    </message>
    <message>
        <source>Why the SIM card was not changed</source>
        <translation>Почему SIM-карта не изменена</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>запись: %1</translation>
    </message>
    <message>
        <source>Who may write %1</source>
        <translation>Кто может записать: %1</translation>
    </message>
</context>
<context>
    <name>host::StateSection</name>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>In memory; gone when the window closes.</source>
        <translation>В памяти; пропадёт, когда окно закроется.</translation>
    </message>
    <message>
        <source>Kept in %1</source>
        <translation>Хранится в %1</translation>
    </message>
    <message>
        <source>Where the state is kept</source>
        <translation>Где хранится состояние</translation>
    </message>
    <message>
        <source>New telephone ...</source>
        <translation>Новый телефон ...</translation>
    </message>
    <message>
        <source>Begins with a new telephone, after a question</source>
        <translation>Начинает с новым телефоном, после вопроса</translation>
    </message>
    <message>
        <source>What there is now is kept in a file beside it.</source>
        <translation>То, что есть сейчас, останется в файле рядом.</translation>
    </message>
    <message>
        <source>What there is now is lost.</source>
        <translation>То, что есть сейчас, будет потеряно.</translation>
    </message>
    <message>
        <source>Begin with a new telephone? Calls, figures, settings and the simulated SIM card begin anew; a call that is on ends.</source>
        <translation>Начать с новым телефоном? Вызовы, счётчики, настройки и имитируемая SIM-карта начнутся заново; идущий вызов завершится.</translation>
    </message>
    <message>
        <source>New telephone</source>
        <translation>Новый телефон</translation>
    </message>
    <message>
        <source>Begin anew</source>
        <translation>Начать заново</translation>
    </message>
</context>
<context>
    <name>host::StatusText</name>
    <message>
        <source>the number is not one that can be dialed</source>
        <translation>этот номер нельзя набрать</translation>
    </message>
    <message>
        <source>the line is in another state</source>
        <translation>линия в другом состоянии</translation>
    </message>
    <message>
        <source>not allowed now: nothing more may be charged</source>
        <translation>сейчас нельзя: больше ничего нельзя тарифицировать</translation>
    </message>
    <message>
        <source>an amount of at least one unit, and not more than the account holds</source>
        <translation>сумма не меньше одной единицы и не больше, чем вмещает счёт</translation>
    </message>
    <message>
        <source>not possible now</source>
        <translation>сейчас невозможно</translation>
    </message>
    <message>
        <source>not allowed</source>
        <translation>нельзя</translation>
    </message>
    <message>
        <source>no price, or a currency of more than three characters</source>
        <translation>нет цены, или валюта длиннее трёх знаков</translation>
    </message>
    <message>
        <source>the SIM card refuses</source>
        <translation>SIM-карта отказывает</translation>
    </message>
    <message>
        <source>an access point name has 1 to 101 Latin-1 characters</source>
        <translation>в имени точки доступа от 1 до 101 знака Latin-1</translation>
    </message>
    <message>
        <source>a session is running, or none is</source>
        <translation>сеанс уже идёт, или ни одного нет</translation>
    </message>
    <message>
        <source>PUK2 has eight digits, a PIN2 four to eight</source>
        <translation>в PUK2 восемь цифр, в PIN2 от четырёх до восьми</translation>
    </message>
    <message>
        <source>PUK2 is blocked, too</source>
        <translation>PUK2 тоже заблокирован</translation>
    </message>
    <message>
        <source>a PIN2 has four to eight digits</source>
        <translation>в PIN2 от четырёх до восьми цифр</translation>
    </message>
    <message>
        <source>PIN2 is blocked</source>
        <translation>PIN2 заблокирован</translation>
    </message>
    <message>
        <source>the call is not kept any more</source>
        <translation>вызов больше не хранится</translation>
    </message>
    <message>
        <source>the call is still running</source>
        <translation>вызов ещё продолжается</translation>
    </message>
    <message>
        <source>there is no such rule</source>
        <translation>такого правила нет</translation>
    </message>
    <message>
        <source>the network knows no such tariff</source>
        <translation>сеть не знает такого тарифа</translation>
    </message>
    <message>
        <source>the telephone cannot do this</source>
        <translation>телефон этого не умеет</translation>
    </message>
    <message>
        <source>the call log cannot be written</source>
        <translation>не удаётся записать журнал вызовов</translation>
    </message>
    <message>
        <source>another process records the calls</source>
        <translation>вызовы записывает другой процесс</translation>
    </message>
    <message>
        <source>Not done: %1.</source>
        <translation>Не сделано: %1.</translation>
    </message>
    <message>
        <source>Not done: the telephone answers %1.</source>
        <translation>Не сделано: телефон отвечает %1.</translation>
    </message>
    <message>
        <source>a value is out of range</source>
        <translation>значение вне пределов</translation>
    </message>
    <message>
        <source>it is not possible now</source>
        <translation>сейчас это невозможно</translation>
    </message>
    <message>
        <source>the SIM or the network does not allow it</source>
        <translation>SIM-карта или сеть этого не позволяет</translation>
    </message>
</context>
<context>
    <name>host::TariffSection</name>
    <message>
        <source>Free</source>
        <translation>Бесплатно</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Единиц</translation>
    </message>
    <message>
        <source>for each</source>
        <translation>за каждые</translation>
    </message>
    <message>
        <source>at the start</source>
        <translation>в начале</translation>
    </message>
    <message>
        <source>Dialed calls</source>
        <translation>Исходящие</translation>
    </message>
    <message>
        <source>Answered calls</source>
        <translation>Входящие</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Tariff</source>
        <translation>Тариф</translation>
    </message>
    <message>
        <source>Why the tariff was not set</source>
        <translation>Почему тариф не задан</translation>
    </message>
    <message>
        <source>%1 are free</source>
        <translation>%1: бесплатно</translation>
    </message>
    <message>
        <source>Nothing is charged for them</source>
        <translation>За них ничего не начисляется</translation>
    </message>
    <message>
        <source>Units for each interval</source>
        <translation>Единиц за интервал</translation>
    </message>
    <message>
        <source>Interval in seconds</source>
        <translation>Интервал в секундах</translation>
    </message>
    <message>
        <source> s</source>
        <translation> с</translation>
    </message>
    <message>
        <source>Units when the call is connected</source>
        <translation>Единиц при соединении</translation>
    </message>
</context>
<context>
    <name>host::WaitNotice</name>
    <message>
        <source>Please wait ...</source>
        <translation>Подождите ...</translation>
    </message>
</context>
<context>
    <name>kavcallrecorder</name>
    <message>
        <source>
Exit codes:
  0  a signal has ended it, and what ran is written
  2  the command line is wrong
  3  there is no system bus, or the telephone cannot be opened
</source>
        <translation>
Коды завершения:
  0  программу завершил сигнал, и то, что шло, записано
  2  командная строка неверна
  3  нет системной шины, или телефон нельзя открыть
</translation>
    </message>
    <message>
        <source>See kavcallrecorder --help.</source>
        <translation>См. kavcallrecorder --help.</translation>
    </message>
    <message>
        <source>Records the calls and data connections of a modem while no window is open.</source>
        <translation>Записывает вызовы и соединения данных модема, пока не открыто ни одно окно.</translation>
    </message>
    <message>
        <source>The telephone: %1, the path of a library that has one, or auto: the first over which a modem is there, now or later. Default: auto.</source>
        <translation>Телефон: %1, путь к библиотеке, в которой он есть, или auto: первый, через который доступен модем, сейчас или позже. По умолчанию: auto.</translation>
    </message>
    <message>
        <source>Record in DIR. Default: %1</source>
        <translation>Записывать в DIR. По умолчанию: %1</translation>
    </message>
    <message>
        <source>Keep the calls of the last DAYS days, 0 to 100000; older ones are deleted when recording begins and once a day, and stay in the totals. Default: all are kept.</source>
        <translation>Хранить вызовы за последние DAYS дней, от 0 до 100000; более старые удаляются в начале записи и раз в день, но остаются в итогах. По умолчанию: хранятся все.</translation>
    </message>
    <message>
        <source>%1; it is looked for.</source>
        <translation>%1; поиск продолжается.</translation>
    </message>
    <message>
        <source>Option 'keep-calls' wants a number of days, 0 to %1.</source>
        <translation>Параметру «keep-calls» нужно число дней от 0 до %1.</translation>
    </message>
    <message>
        <source>There is a value missing or too many.</source>
        <translation>Не хватает значения, или есть лишнее.</translation>
    </message>
</context>
<context>
    <name>kavmeter</name>
    <message>
        <source>Shows the meters of the phone: times and costs of calls, times and bytes of packet data.

Commands:
  figures [NAME ...]   all figures, or these; the default
  settings             advice of charge: how costs are counted, the credit limit, the price
  calls                the calls that are kept
  sessions             the packet-data sessions that are kept
  totals               what is kept, by month or as --by and --cycle-day say
  reset NAME           sets to zero: %1
  delete ID|all        deletes a call, or all that are over; totals stay
  export FILE          writes the whole state as JSON; "-" is standard output
  import FILE          makes a new state of such a file

Figures: %2.</source>
        <translation>Показывает счётчики телефона: время и стоимость вызовов, время и байты пакетных данных.

Команды:
  figures [NAME ...]   все показатели или только эти; по умолчанию
  settings             оповещение о стоимости: как она считается, лимит кредита, цена
  calls                хранимые вызовы
  sessions             хранимые сеансы передачи данных
  totals               всё хранимое, по месяцам или согласно --by и --cycle-day
  reset NAME           обнуляет: %1
  delete ID|all        удаляет вызов или все завершённые; итоги остаются
  export FILE          записывает всё состояние в JSON; «-» — стандартный вывод
  import FILE          создаёт из такого файла новое состояние

Показатели: %2.</translation>
    </message>
    <message>
        <source>
Exit codes:
  0  all went well
  1  the telephone refuses, or the call log cannot be read or written
  2  the command line is wrong, or a change was asked for without --yes
  3  there is no state, or the telephone cannot be opened
  4  a figure that was named is not available
  5  the credit limit is reached, or the credit used up
  6  the figure of --alert is reached
  7  a file, or the output, cannot be read or written, or has a mistake
</source>
        <translation>
Коды завершения:
  0  всё прошло успешно
  1  телефон отказывает, или журнал вызовов нельзя прочитать или записать
  2  командная строка неверна, или изменение запрошено без --yes
  3  состояния нет, или телефон нельзя открыть
  4  названный показатель недоступен
  5  лимит кредита достигнут, или средства исчерпаны
  6  показатель из --alert достигнут
  7  файл или вывод нельзя прочитать или записать, или в нём ошибка
</translation>
    </message>
    <message>
        <source>The telephone's state is in DIR. Default: %1</source>
        <translation>Состояние телефона находится в DIR. По умолчанию: %1</translation>
    </message>
    <message>
        <source>The telephone: %1, or the path of a library that has one. Default: simulated.</source>
        <translation>Телефон: %1 или путь к библиотеке, в которой он есть. По умолчанию: simulated.</translation>
    </message>
    <message>
        <source>Speak this language: %1. Default: the locale's. JSON and CSV are the same in each.</source>
        <translation>Язык: %1. По умолчанию: язык локали. JSON и CSV одинаковы на всех.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>Выводить JSON.</translation>
    </message>
    <message>
        <source>Print comma-separated values.</source>
        <translation>Выводить значения, разделённые запятыми.</translation>
    </message>
    <message>
        <source>Reset or delete indeed; nothing is asked.</source>
        <translation>Действительно обнулить или удалить; без вопросов.</translation>
    </message>
    <message>
        <source>Print anew whenever something changes, until a signal comes.</source>
        <translation>Выводить заново при каждом изменении, пока не придёт сигнал.</translation>
    </message>
    <message>
        <source>Totals by day, month or cycle.</source>
        <translation>Итоги по дням, месяцам или периодам (day, month, cycle).</translation>
    </message>
    <message>
        <source>The billing cycle begins on day N, 1 to 28; totals by cycle.</source>
        <translation>Расчётный период начинается в день N, от 1 до 28; итоги по периодам.</translation>
    </message>
    <message>
        <source>With delete all: keep the calls of the last DAYS days.</source>
        <translation>С delete all: сохранить вызовы за последние DAYS дней.</translation>
    </message>
    <message>
        <source>COST N, TIME N or BYTES N: exit code 6 where all calls have cost N or more, lasted N seconds or more, or N bytes or more have gone both ways.</source>
        <translation>COST N, TIME N или BYTES N: код завершения 6, если все вызовы стоили N или больше, длились N секунд или дольше либо в обе стороны передано N байт или больше.</translation>
    </message>
    <message>
        <source>What to do.</source>
        <translation>Что сделать.</translation>
    </message>
    <message>
        <source>Option 'alert' wants COST, TIME or BYTES, and a number.</source>
        <translation>Параметру «alert» нужны COST, TIME или BYTES и число.</translation>
    </message>
    <message>
        <source>Option 'by' wants day, month or cycle.</source>
        <translation>Параметру «by» нужно day, month или cycle.</translation>
    </message>
    <message>
        <source>Option 'cycle-day' wants a day from 1 to 28.</source>
        <translation>Параметру «cycle-day» нужен день от 1 до 28.</translation>
    </message>
    <message>
        <source>Option 'cycle-day' goes with --by cycle.</source>
        <translation>Параметр «cycle-day» используется с --by cycle.</translation>
    </message>
    <message>
        <source>Option 'keep-calls' wants a number of days.</source>
        <translation>Параметру «keep-calls» нужно число дней.</translation>
    </message>
    <message>
        <source>Option 'keep-calls' goes with delete all.</source>
        <translation>Параметр «keep-calls» используется с delete all.</translation>
    </message>
    <message>
        <source>There is no command '%1'.</source>
        <translation>Команды «%1» нет.</translation>
    </message>
    <message>
        <source>The command '%1' has a word missing or too many.</source>
        <translation>В команде «%1» не хватает слова, или есть лишнее.</translation>
    </message>
    <message>
        <source>There is no '%1' to show or to reset.</source>
        <translation>Нет «%1», чтобы показать или обнулить.</translation>
    </message>
    <message>
        <source>Options 'watch' and 'alert' go with figures.</source>
        <translation>Параметры «watch» и «alert» используются с figures.</translation>
    </message>
    <message>
        <source>Nothing was changed: '%1' wants --yes.</source>
        <translation>Ничего не изменено: для «%1» нужен --yes.</translation>
    </message>
    <message>
        <source>Options 'state' and 'backend' want a value.</source>
        <translation>Параметрам «state» и «backend» нужно значение.</translation>
    </message>
    <message>
        <source>Unknown language '%1'; there is: %2.</source>
        <translation>Неизвестный язык «%1»; есть: %2.</translation>
    </message>
    <message>
        <source>Options 'json' and 'csv' do not go together.</source>
        <translation>Параметры «json» и «csv» несовместимы.</translation>
    </message>
    <message>
        <source>units</source>
        <translation>единиц</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>байт</translation>
    </message>
    <message>
        <source>currency</source>
        <translation>валюта</translation>
    </message>
    <message>
        <source>on</source>
        <translation>включён</translation>
    </message>
    <message>
        <source>off</source>
        <translation>выключен</translation>
    </message>
    <message>
        <source>The output cannot be written.</source>
        <translation>Не удаётся записать вывод.</translation>
    </message>
    <message>
        <source>There is no state in "%1".</source>
        <translation>В «%1» нет состояния.</translation>
    </message>
    <message>
        <source>The figure of the alert is not available.</source>
        <translation>Показатель для предупреждения недоступен.</translation>
    </message>
    <message>
        <source>The call log cannot be read.</source>
        <translation>Журнал вызовов нельзя прочитать.</translation>
    </message>
    <message>
        <source>Nothing was changed: %1 %2: %3.</source>
        <translation>Ничего не изменено: %1 %2: %3.</translation>
    </message>
    <message>
        <source>delete wants the id of a call, or all.</source>
        <translation>Команде delete нужен номер вызова или all.</translation>
    </message>
    <message>
        <source>See kavmeter --help.</source>
        <translation>См. kavmeter --help.</translation>
    </message>
    <message>
        <source>running</source>
        <translation>идёт</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>завершён</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>не соединён</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>прерван</translation>
    </message>
    <message>
        <source>data</source>
        <translation>данные</translation>
    </message>
    <message>
        <source>voice</source>
        <translation>голос</translation>
    </message>
    <message>
        <source>dialed</source>
        <translation>исходящий</translation>
    </message>
    <message>
        <source>answered</source>
        <translation>принятый</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>недоступно</translation>
    </message>
    <message>
        <source>is no whole number</source>
        <translation>— не целое число</translation>
    </message>
    <message>
        <source>is no text</source>
        <translation>— не текст</translation>
    </message>
    <message>
        <source>has no pairs of hexadecimal digits</source>
        <translation>не состоит из пар шестнадцатеричных цифр</translation>
    </message>
    <message>
        <source>%1.%2 is missing</source>
        <translation>не хватает %1.%2</translation>
    </message>
    <message>
        <source>%1.%2 is not known</source>
        <translation>%1.%2 неизвестно</translation>
    </message>
    <message>
        <source>kept[%1].content cannot be read</source>
        <translation>kept[%1].content нельзя прочитать</translation>
    </message>
    <message>
        <source>format is not "%1"</source>
        <translation>format — не «%1»</translation>
    </message>
    <message>
        <source>version is not %1</source>
        <translation>version — не %1</translation>
    </message>
    <message>
        <source>%1 is no list</source>
        <translation>%1 — не список</translation>
    </message>
    <message>
        <source>%1 is no row</source>
        <translation>%1 — не строка таблицы</translation>
    </message>
    <message>
        <source>%1[%2] is not possible</source>
        <translation>%1[%2] невозможно</translation>
    </message>
    <message>
        <source>its totals contradict its rows</source>
        <translation>итоги противоречат строкам</translation>
    </message>
    <message>
        <source>"%1" cannot be made: %2.</source>
        <translation>Не удаётся создать «%1»: %2.</translation>
    </message>
    <message>
        <source>"%1" cannot be written: %2.</source>
        <translation>Не удаётся записать «%1»: %2.</translation>
    </message>
    <message>
        <source>"%1" cannot be read: %2.</source>
        <translation>Не удаётся прочитать «%1»: %2.</translation>
    </message>
    <message>
        <source>"%1", line %2: %3.</source>
        <translation>«%1», строка %2: %3.</translation>
    </message>
    <message>
        <source>"%1" is not empty: a state is imported into a new directory.</source>
        <translation>Каталог «%1» не пуст: состояние импортируется в новый каталог.</translation>
    </message>
</context>
<context>
    <name>kavrecentcalls</name>
    <message>
        <source>Option '%1' of Qt does not go with option 'tour'.</source>
        <translation>Параметр Qt «%1» несовместим с параметром «tour».</translation>
    </message>
    <message>
        <source>See kavrecentcalls --help.</source>
        <translation>См. kavrecentcalls --help.</translation>
    </message>
    <message>
        <source>There is no display to show the phone on; --tour DIR needs none.</source>
        <translation>Нет экрана, чтобы показать телефон; для --tour DIR он не нужен.</translation>
    </message>
    <message>
        <source>The display "%1" cannot be reached; --tour DIR needs none.</source>
        <translation>Экран «%1» недоступен; для --tour DIR он не нужен.</translation>
    </message>
    <message>
        <source>The trace file "%1" cannot be opened: %2.</source>
        <translation>Не удаётся открыть файл трассировки «%1»: %2.</translation>
    </message>
    <message>
        <source>The script "%1" cannot be read: %2.</source>
        <translation>Не удаётся прочитать сценарий «%1»: %2.</translation>
    </message>
    <message>
        <source>The photograph "%1" cannot be written.</source>
        <translation>Не удаётся записать снимок «%1».</translation>
    </message>
    <message>
        <source>The plug-in gives no screen "%1".</source>
        <translation>Модуль не даёт экрана «%1».</translation>
    </message>
    <message>
        <source>A new telephone has begun.</source>
        <translation>Начат новый телефон.</translation>
    </message>
    <message>
        <source>There is no new telephone, but the one before: %1.</source>
        <translation>Нового телефона нет, остался прежний: %1.</translation>
    </message>
    <message>
        <source>A new telephone has begun. The one before is kept as "%1".</source>
        <translation>Начат новый телефон. Прежний сохранён как "%1".</translation>
    </message>
    <message>
        <source>Shows the call meters of the phone: a phone with its display and keypad in a window, and beside it a panel
that makes calls on the simulated telephone.</source>
        <translation>Показывает счётчики вызовов телефона: телефон с дисплеем и клавиатурой в окне, а рядом панель,
которая делает вызовы на имитируемом телефоне.</translation>
    </message>
    <message>
        <source>
Exit codes:
  0  all went well
  1  a tour saw something else than its script expects
  2  the command line is wrong
  3  the telephone cannot be opened
  4  the trace file cannot be opened
  5  the plug-in or another library, or a function of it, is missing, or the plug-in gives no screen
  6  the tour's script cannot be read, or has a mistake
  7  a photograph, the text of a tour, or what was asked for cannot be written
  8  the translation catalogue cannot be loaded
  9  there is no display to show the window on, or no such platform of Qt
 10  a tour was ended by a signal before its end
</source>
        <translation>
Коды завершения:
  0  всё прошло успешно
  1  обход увидел не то, чего ждёт его сценарий
  2  командная строка неверна
  3  телефон нельзя открыть
  4  файл трассировки нельзя открыть
  5  нет модуля, другой библиотеки или её функции, или модуль не даёт экрана
  6  сценарий обхода нельзя прочитать, или в нём ошибка
  7  снимок, текст обхода или запрошенное нельзя записать
  8  каталог перевода нельзя загрузить
  9  нет экрана, чтобы показать окно, или нет такой платформы Qt
 10  сигнал завершил обход раньше времени
</translation>
    </message>
    <message>
        <source>Keep the telephone's state in DIR between starts; "none" keeps it in memory. Default: %1</source>
        <translation>Хранить состояние телефона между запусками в DIR; «none» держит его в памяти. По умолчанию: %1</translation>
    </message>
    <message>
        <source>Append the traces to FILE; "-" is standard output. Default: trace.log in the state directory; no trace where the state is in memory, and on a tour.</source>
        <translation>Дописывать трассировку в FILE; «-» — стандартный вывод. По умолчанию: trace.log в каталоге состояния; без трассировки, если состояние в памяти, и при обходе.</translation>
    </message>
    <message>
        <source>The telephone behind: %2, the path of a library that has one, or auto: the first that has a modem, else simulated. Default: simulated.</source>
        <translation>Телефон за окном: %2, путь к библиотеке, в которой он есть, или auto: первый, у которого есть модем, иначе simulated. По умолчанию: simulated.</translation>
    </message>
    <message>
        <source>Keep the calls of the last DAYS days, 0 to 100000; older ones are deleted at the start and once a day, and stay in the totals. Default: all are kept.</source>
        <translation>Хранить вызовы за последние DAYS дней, от 0 до 100000; более старые удаляются при запуске и раз в день, но остаются в итогах. По умолчанию: хранятся все.</translation>
    </message>
    <message>
        <source>The plug-in library. Default: libkavcallmeter.so.1</source>
        <translation>Библиотека модуля. По умолчанию: libkavcallmeter.so.1</translation>
    </message>
    <message>
        <source>Open this screen at once: %3.</source>
        <translation>Сразу открыть этот экран: %3.</translation>
    </message>
    <message>
        <source>Show this page of the panel: %4.</source>
        <translation>Показать эту страницу панели: %4.</translation>
    </message>
    <message>
        <source>Show the phone's display alone, as large as the window and worked by touch: for a window that is a phone's.</source>
        <translation>Показать только экран телефона, размером с окно и с управлением касанием: для окна на телефоне.</translation>
    </message>
    <message>
        <source>Load the texts of the catalogue FILE (.qm).</source>
        <translation>Загрузить тексты каталога FILE (.qm).</translation>
    </message>
    <message>
        <source>Speak this language: %5. Default: the locale's; English on a tour and with --photo.</source>
        <translation>Язык: %5. По умолчанию: язык локали; при обходе и с --photo английский.</translation>
    </message>
    <message>
        <source>The colours: light or dark. Default: the desktop's; light on a tour and with --photo.</source>
        <translation>Цвета: light (светлые) или dark (тёмные). По умолчанию: как на рабочем столе; при обходе и с --photo — light.</translation>
    </message>
    <message>
        <source>Photograph the window as PNG to FILE and end.</source>
        <translation>Сохранить снимок окна в формате PNG в FILE и завершить.</translation>
    </message>
    <message>
        <source>Play a tour without a display: put photographs of the screens into DIR and print their texts.</source>
        <translation>Выполнить обход без экрана: сохранить снимки экранов в DIR и вывести их тексты.</translation>
    </message>
    <message>
        <source>Play this script instead of the tour of all screens; only with --tour.</source>
        <translation>Выполнить этот сценарий вместо обхода всех экранов; только с --tour.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Показывает эту справку.</translation>
    </message>
    <message>
        <source>Option '%1' has an empty value.</source>
        <translation>У параметра «%1» пустое значение.</translation>
    </message>
    <message>
        <source>The name that option '%1' gives is not UTF-8.</source>
        <translation>Имя в параметре «%1» не в UTF-8.</translation>
    </message>
    <message>
        <source>Unknown screen '%1'; there is: %2.</source>
        <translation>Неизвестный экран «%1»; есть: %2.</translation>
    </message>
    <message>
        <source>Unknown page '%1'; there is: %2.</source>
        <translation>Неизвестная страница «%1»; есть: %2.</translation>
    </message>
    <message>
        <source>Unknown language '%1'; there is: %2.</source>
        <translation>Неизвестный язык «%1»; есть: %2.</translation>
    </message>
    <message>
        <source>Unknown skin '%1'; there is: %2.</source>
        <translation>Неизвестная тема «%1»; есть: %2.</translation>
    </message>
    <message>
        <source>Unexpected argument '%1'.</source>
        <translation>Неожиданный аргумент «%1».</translation>
    </message>
    <message>
        <source>Option 'script' needs option 'tour'.</source>
        <translation>Параметру «script» нужен параметр «tour».</translation>
    </message>
    <message>
        <source>Option 'keep-calls' wants a number of days, 0 to %1.</source>
        <translation>Параметру «keep-calls» нужно число дней от 0 до %1.</translation>
    </message>
    <message>
        <source>Option '%1' does not go with option 'tour'.</source>
        <translation>Параметр «%1» несовместим с параметром «tour».</translation>
    </message>
    <message>
        <source>Option 'page' does not go with option 'display'.</source>
        <translation>Параметр «page» несовместим с параметром «display».</translation>
    </message>
    <message>
        <source>Option 'language' does not go with option 'translation'.</source>
        <translation>Параметр «language» несовместим с параметром «translation».</translation>
    </message>
</context>
</TS>
