<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>PHONE_UI_RecentCallCostSetupView</name>
    <message>
        <source>TXT_RID_SETTING_A_CREDIT_LIMIT</source>
        <comment>Credit Limit</comment>
        <translation>Kredi sınırı</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CURRENCY_TYPE</source>
        <comment>Currency Type</comment>
        <translation>Para birimi türü</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>All costs have been reset to 0.00 units.</comment>
        <translation>Tüm ücretler 0.00 birime sıfırlandı.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ALL_CALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>All call costs have been reset to 0.00 units.</comment>
        <translation>Tüm arama ücretleri 0.00 birime sıfırlandı.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_DIALED_CALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>Dialed call costs have been reset to 0.00 units.</comment>
        <translation>Yapılan aramaların ücretleri 0.00 birime sıfırlandı.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ANSWERED_CALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>Answered call costs have been reset to 0.00 units.</comment>
        <translation>Yanıtlanan aramaların ücretleri 0.00 birime sıfırlandı.</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_B_ON</source>
        <comment>On</comment>
        <translation>Açık</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_B_OFF</source>
        <comment>Off</comment>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ON</source>
        <comment>On</comment>
        <translation>Açık</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_OFF</source>
        <comment>Off</comment>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CUSTOM</source>
        <comment>Custom</comment>
        <translation>Özel</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_SAVE</source>
        <comment>Save</comment>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_RESET_CALLS</source>
        <comment>Reset Calls</comment>
        <translation>Sıfırla</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CURRENCY</source>
        <comment>Currency</comment>
        <translation>Para birimi</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CHOOSE_TYPE</source>
        <comment>Choose Type</comment>
        <translation>Para birimi seç</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CURRENCY_TYPE</source>
        <comment>Currency Type</comment>
        <translation>Para birimi</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_COST_PER_MINUTE</source>
        <comment>Cost Per Minute</comment>
        <translation>Dakika ücreti</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ADJUST_CREDIT_LIMIT</source>
        <comment>Adjust Credit Limit</comment>
        <translation>Sınırı ayarla</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_COST_SETUP</source>
        <comment>Call-Cost Setup</comment>
        <translation>Ücret ayarları</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Geri</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UNITED_ARAB_EMIRATES_DIRHAM_AED</source>
        <comment>UNITED ARAB EMIRATES  DIRHAM  (AED)</comment>
        <translation>Birleşik Arap Emirlikleri: dirhem (AED)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AFGHANISTAN_AFGHANI_AFA</source>
        <comment>AFGHANISTAN  AFGHANI  (AFA)</comment>
        <translation>Afganistan: afgani (AFA)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ALBANIA_LEK_ALL</source>
        <comment>ALBANIA  LEK  (ALL)</comment>
        <translation>Arnavutluk: lek (ALL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ARMENIA_DRAM_AMD</source>
        <comment>ARMENIA  DRAM  (AMD)</comment>
        <translation>Ermenistan: dram (AMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NETHERLANDS_ANTILLES_GUILDER_ANG</source>
        <comment>NETHERLANDS ANTILLES  GUILDER  (ANG)</comment>
        <translation>Hollanda Antilleri: gulden (ANG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ANGOLA_NEW_KWANZA_AON</source>
        <comment>ANGOLA  NEW KWANZA  (AON)</comment>
        <translation>Angola: yeni kvanza (AON)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ARGENTINA_PESO_ARS</source>
        <comment>ARGENTINA  PESO  (ARS)</comment>
        <translation>Arjantin: peso (ARS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AUSTRIA_SCHILLING_ATS</source>
        <comment>AUSTRIA  SCHILLING  (ATS)</comment>
        <translation>Avusturya: şilin (ATS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AUSTRALIA_KIRIBATI_DOLLAR_AUD</source>
        <comment>AUSTRALIA KIRIBATI  DOLLAR  (AUD)</comment>
        <translation>Avustralya, Kiribati: dolar (AUD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ARUBA_FLORIN_AWG</source>
        <comment>ARUBA  FLORIN  (AWG)</comment>
        <translation>Aruba: florin (AWG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AZERBAIJAN_MANAT_AZM</source>
        <comment>AZERBAIJAN  MANAT  (AZM)</comment>
        <translation>Azerbaycan: manat (AZM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BARBADOS_DOLLAR_BBD</source>
        <comment>BARBADOS  DOLLAR  (BBD)</comment>
        <translation>Barbados: dolar (BBD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BANGLADESH_TAKA_BDT</source>
        <comment>BANGLADESH  TAKA  (BDT)</comment>
        <translation>Bangladeş: taka (BDT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BELGIUM_FRANC_BEF</source>
        <comment>BELGIUM  FRANC  (BEF)</comment>
        <translation>Belçika: frank (BEF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BULGARIA_LEW_BGN</source>
        <comment>BULGARIA  LEW  (BGN)</comment>
        <translation>Bulgaristan: leva (BGN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BAHRAIN_DINAR_BHD</source>
        <comment>BAHRAIN  DINAR  (BHD)</comment>
        <translation>Bahreyn: dinar (BHD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BURUNDI_FRANC_BIF</source>
        <comment>BURUNDI  FRANC  (BIF)</comment>
        <translation>Burundi: frank (BIF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BERMUDA_DOLLAR_BMD</source>
        <comment>BERMUDA  DOLLAR  (BMD)</comment>
        <translation>Bermuda: dolar (BMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BRUNEI_DOLLAR_BND</source>
        <comment>BRUNEI  DOLLAR  (BND)</comment>
        <translation>Brunei: dolar (BND)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BOLIVIA_BOLIVIANO_BOB</source>
        <comment>BOLIVIA  BOLIVIANO  (BOB)</comment>
        <translation>Bolivya: boliviano (BOB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BRAZIL_REAL_BRL</source>
        <comment>BRAZIL  REAL  (BRL)</comment>
        <translation>Brezilya: real (BRL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BAHAMAS_DOLLAR_BSD</source>
        <comment>BAHAMAS  DOLLAR  (BSD)</comment>
        <translation>Bahamalar: dolar (BSD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BHUTAN_NGULTRUM_BTN</source>
        <comment>BHUTAN  NGULTRUM  (BTN)</comment>
        <translation>Butan: ngultrum (BTN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BOTSWANA_PULA_BWP</source>
        <comment>BOTSWANA  PULA  (BWP)</comment>
        <translation>Botsvana: pula (BWP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BELORUS_ROUBLE_BYR</source>
        <comment>BELORUS  ROUBLE  (BYR)</comment>
        <translation>Belarus: ruble (BYR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BELIZE_DOLLAR_BZD</source>
        <comment>BELIZE  DOLLAR  (BZD)</comment>
        <translation>Belize: dolar (BZD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CANADA_DOLLAR_CAD</source>
        <comment>CANADA  DOLLAR  (CAD)</comment>
        <translation>Kanada: dolar (CAD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SWITZERLAND_LIECHTENSTEIN_FRANC_CHF</source>
        <comment>SWITZERLAND; LIECHTENSTEIN  FRANC  (CHF)</comment>
        <translation>İsviçre, Lihtenştayn: frank (CHF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CHILE_PESO_CLP</source>
        <comment>CHILE  PESO  (CLP)</comment>
        <translation>Şili: peso (CLP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CHINA_RENMINBI_YUAN_CNY</source>
        <comment>CHINA  RENMINBI ¥UAN  (CNY)</comment>
        <translation>Çin: yuan renminbi (CNY)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_COLUMBIA_PESO_COP</source>
        <comment>COLUMBIA  PESO  (COP)</comment>
        <translation>Kolombiya: peso (COP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_COSTA_RICA_COLON_CRC</source>
        <comment>COSTA RICA  COLÓN  (CRC)</comment>
        <translation>Kosta Rika: kolon (CRC)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CUBA_PESO_CUP</source>
        <comment>CUBA  PESO  (CUP)</comment>
        <translation>Küba: peso (CUP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CAPE_VERDE_ESCUDO_CVE</source>
        <comment>CAPE VERDE  ESCUDO  (CVE)</comment>
        <translation>Yeşil Burun: eskudo (CVE)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CYPRUS_POUND_CYP</source>
        <comment>CYPRUS  POUND  (CYP)</comment>
        <translation>Kıbrıs: lira (CYP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CZECH_REPUBLIC_KRONER_CZK</source>
        <comment>CZECH REPUBLIC  KRONER  (CZK)</comment>
        <translation>Çek Cumhuriyeti: koruna (CZK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GERMANY_MARK_DEM</source>
        <comment>GERMANY  MARK  (DEM)</comment>
        <translation>Almanya: mark (DEM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DJIBUTI_FRANC_DJF</source>
        <comment>DJIBUTI  FRANC  (DJF)</comment>
        <translation>Cibuti: frank (DJF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DENMARK_KRONE_DKK</source>
        <comment>DENMARK  KRONE  (DKK)</comment>
        <translation>Danimarka: kron (DKK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DOMINICAN_REPUBLIC_PESO_DOP</source>
        <comment>DOMINICAN REPUBLIC  PESO  (DOP)</comment>
        <translation>Dominik Cumhuriyeti: peso (DOP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ALGERIA_DINAR_DZD</source>
        <comment>ALGERIA  DINAR  (DZD)</comment>
        <translation>Cezayir: dinar (DZD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ECUADOR_SUCRE_ECS</source>
        <comment>ECUADOR  SUCRE  (ECS)</comment>
        <translation>Ekvador: sucre (ECS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ESTONIA_KROON_EEK</source>
        <comment>ESTONIA  KROON  (EEK)</comment>
        <translation>Estonya: kron (EEK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EGYPT_POUND_EGP</source>
        <comment>EGYPT  POUND  (EGP)</comment>
        <translation>Mısır: lira (EGP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SPAIN_ANDORRA_PESETA_ESP</source>
        <comment>SPAIN ANDORRA  PESETA  (ESP)</comment>
        <translation>İspanya, Andorra: peseta (ESP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ETHIOPIA_BIRR_ETB</source>
        <comment>ETHIOPIA  BIRR  (ETB)</comment>
        <translation>Etiyopya: birr (ETB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FINLAND_MARK_FIM</source>
        <comment>FINLAND  MARK  (FIM)</comment>
        <translation>Finlandiya: mark (FIM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FIJI_DOLLAR_FJD</source>
        <comment>FIJI  DOLLAR  (FJD)</comment>
        <translation>Fiji: dolar (FJD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FALKLAND_ISLES_POUND_FKP</source>
        <comment>FALKLAND ISLES  POUND  (FKP)</comment>
        <translation>Falkland Adaları: lira (FKP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FRANCE_FRANC_FRF</source>
        <comment>FRANCE  FRANC  (FRF)</comment>
        <translation>Fransa: frank (FRF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UNITED_KINGDOM_GREAT_BRITAIN_POUND_STERLING_GBP</source>
        <comment>UNITED KINGDOM (GREAT BRITAIN)  POUND STERLING  (GBP)</comment>
        <translation>Birleşik Krallık: sterlin (GBP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GEORGIA_COUPON_GEK</source>
        <comment>GEORGIA  COUPON  (GEK)</comment>
        <translation>Gürcistan: kupon (GEK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GHANA_CEDI_GHC</source>
        <comment>GHANA  CEDI  (GHC)</comment>
        <translation>Gana: cedi (GHC)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GIBRALTAR_POUND_GIP</source>
        <comment>GIBRALTAR  POUND  (GIP)</comment>
        <translation>Cebelitarık: lira (GIP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GAMBIA_DALASI_GMD</source>
        <comment>GAMBIA  DALASI  (GMD)</comment>
        <translation>Gambiya: dalasi (GMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUINEA_FRANC_GNF</source>
        <comment>GUINEA  FRANC  (GNF)</comment>
        <translation>Gine: frank (GNF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GREECE_DRACHMA_GRD</source>
        <comment>GREECE  DRACHMA  (GRD)</comment>
        <translation>Yunanistan: drahmi (GRD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUATEMALA_QUETZAL_GTQ</source>
        <comment>GUATEMALA  QUETZAL  (GTQ)</comment>
        <translation>Guatemala: quetzal (GTQ)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUINEA_BISSAU_PESO_GWP</source>
        <comment>GUINEA-BISSAU  PESO  (GWP)</comment>
        <translation>Gine-Bissau: peso (GWP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUYANA_DOLLAR_GYD</source>
        <comment>GUYANA  DOLLAR  (GYD)</comment>
        <translation>Guyana: dolar (GYD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HONG_KONG_DOLLAR_HKD</source>
        <comment>HONG KONG  DOLLAR  (HKD)</comment>
        <translation>Hong Kong: dolar (HKD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HONDURAS_LEMPIRA_HNL</source>
        <comment>HONDURAS  LEMPIRA  (HNL)</comment>
        <translation>Honduras: lempira (HNL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CROATIA_KUNA_HRK</source>
        <comment>CROATIA  KUNA  (HRK)</comment>
        <translation>Hırvatistan: kuna (HRK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HAITI_GOURDE_HTG</source>
        <comment>HAITI  GOURDE  (HTG)</comment>
        <translation>Haiti: gourde (HTG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HUNGARY_FORINT_HUF</source>
        <comment>HUNGARY  FORINT  (HUF)</comment>
        <translation>Macaristan: forint (HUF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_INDONESIA_RUPIAH_IDR</source>
        <comment>INDONESIA  RUPIAH  (IDR)</comment>
        <translation>Endonezya: rupi (IDR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IRELAND_PUNT_IEP</source>
        <comment>IRELAND  PUNT  (IEP)</comment>
        <translation>İrlanda: lira (IEP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ISRAEL_NEW_SHEKEL_ILS</source>
        <comment>ISRAEL  NEW SHEKEL  (ILS)</comment>
        <translation>İsrail: yeni şekel (ILS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_INDIA_BHUTAN_RUPEE_INR</source>
        <comment>INDIA; BHUTAN  RUPEE  (INR)</comment>
        <translation>Hindistan, Butan: rupi (INR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IRAQ_DINAR_IQD</source>
        <comment>IRAQ  DINAR  (IQD)</comment>
        <translation>Irak: dinar (IQD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IRAN_RIAL_IRR</source>
        <comment>IRAN  RIAL  (IRR)</comment>
        <translation>İran: riyal (IRR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ICELAND_KRONER_ISK</source>
        <comment>ICELAND  KRONER  (ISK)</comment>
        <translation>İzlanda: kron (ISK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ITALY_LIRA_ITL</source>
        <comment>ITALY  LIRA  (ITL)</comment>
        <translation>İtalya: lira (ITL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JAMAICA_DOLLAR_JMD</source>
        <comment>JAMAICA  DOLLAR  (JMD)</comment>
        <translation>Jamaika: dolar (JMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JORDAN_DINAR_JOD</source>
        <comment>JORDAN  DINAR  (JOD)</comment>
        <translation>Ürdün: dinar (JOD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JAPAN_YEN_JPY</source>
        <comment>JAPAN  YEN  (JPY)</comment>
        <translation>Japonya: yen (JPY)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KENYA_SHILLING_KES</source>
        <comment>KENYA  SHILLING  (KES)</comment>
        <translation>Kenya: şilin (KES)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KIRGIZISTAN_SOM_KGS</source>
        <comment>KIRGIZISTAN  SOM  (KGS)</comment>
        <translation>Kırgızistan: som (KGS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CAMBODIA_RIEL_KHR</source>
        <comment>CAMBODIA  RIEL  (KHR)</comment>
        <translation>Kamboçya: riel (KHR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_COMORES_FRANC_KMF</source>
        <comment>COMORES  FRANC  (KMF)</comment>
        <translation>Komorlar: frank (KMF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KOREA_DEMOCRATIC_PEOPLES_REPUBLIC_WON_KPW</source>
        <comment>KOREA, DEMOCRATIC PEOPLE'S REPUBLIC  WON  (KPW)</comment>
        <translation>Kuzey Kore: won (KPW)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KOREA_REPUBLIC_SOUTH_KOREA_WON_KRW</source>
        <comment>KOREA, REPUBLIC (SOUTH KOREA)  WON  (KRW)</comment>
        <translation>Güney Kore: won (KRW)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KUWAIT_DINAR_KWD</source>
        <comment>KUWAIT  DINAR  (KWD)</comment>
        <translation>Kuveyt: dinar (KWD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CAYMAN_ISLANDS_DOLLAR_KYD</source>
        <comment>CAYMAN ISLANDS  DOLLAR  (KYD)</comment>
        <translation>Cayman Adaları: dolar (KYD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KAZAKHSTAN_TENGE_KZT</source>
        <comment>KAZAKHSTAN  TENGE  (KZT)</comment>
        <translation>Kazakistan: tenge (KZT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LAOS_KIP_LAK</source>
        <comment>LAOS  KIP  (LAK)</comment>
        <translation>Laos: kip (LAK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LEBANON_POUND_LBP</source>
        <comment>LEBANON  POUND  (LBP)</comment>
        <translation>Lübnan: lira (LBP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SRI_LANKA_RUPEE_LKR</source>
        <comment>SRI LANKA  RUPEE  (LKR)</comment>
        <translation>Sri Lanka: rupi (LKR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LIBERIA_DOLLAR_LRD</source>
        <comment>LIBERIA  DOLLAR  (LRD)</comment>
        <translation>Liberya: dolar (LRD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LESOTHO_LOTI_PL_MALOTI_LSL</source>
        <comment>LESOTHO  LOTI (Pl.: MALOTI)  (LSL)</comment>
        <translation>Lesotho: loti (LSL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LITHUANIA_LITAS_LTL</source>
        <comment>LITHUANIA  LITAS  (LTL)</comment>
        <translation>Litvanya: litas (LTL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LUXEMBOURG_FRANC_LUF</source>
        <comment>LUXEMBOURG  FRANC  (LUF)</comment>
        <translation>Lüksemburg: frank (LUF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LATVIA_LAT_LVL</source>
        <comment>LATVIA  LAT  (LVL)</comment>
        <translation>Letonya: lats (LVL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LIBYA_DINAR_LYD</source>
        <comment>LIBYA  DINAR  (LYD)</comment>
        <translation>Libya: dinar (LYD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MAROC_DIRHAM_MAD</source>
        <comment>MAROC  DIRHAM  (MAD)</comment>
        <translation>Fas: dirhem (MAD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MOLDAVIA_LEU_MDL</source>
        <comment>MOLDAVIA  LEU  (MDL)</comment>
        <translation>Moldova: ley (MDL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MADAGASCAR_FRANC_MGF</source>
        <comment>MADAGASCAR  FRANC  (MGF)</comment>
        <translation>Madagaskar: frank (MGF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MACEDONIA_DENAR_MKD</source>
        <comment>MACEDONIA  DENAR  (MKD)</comment>
        <translation>Makedonya: dinar (MKD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MYANMAR_KYAT_MMK</source>
        <comment>MYANMAR  KYAT  (MMK)</comment>
        <translation>Myanmar: kyat (MMK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MONGOLIA_TUGRIK_MNT</source>
        <comment>MONGOLIA  TUGRIK  (MNT)</comment>
        <translation>Moğolistan: tugrik (MNT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MACAU_PATACA_MOP</source>
        <comment>MACAU  PATACA  (MOP)</comment>
        <translation>Makao: pataka (MOP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MAURETANIA_OUGUIYA_MRO</source>
        <comment>MAURETANIA  OUGUIYA  (MRO)</comment>
        <translation>Moritanya: ugiya (MRO)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALTA_LIRA_MTL</source>
        <comment>MALTA  LIRA  (MTL)</comment>
        <translation>Malta: lira (MTL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MAURITIUS_RUPEE_MUR</source>
        <comment>MAURITIUS  RUPEE  (MUR)</comment>
        <translation>Mauritius: rupi (MUR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALDIVE_ISLES_RUFIYAA_MVR</source>
        <comment>MALDIVE ISLES  RUFIYAA  (MVR)</comment>
        <translation>Maldivler: rufiyaa (MVR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALAWI_KWACHA_MWK</source>
        <comment>MALAWI  KWACHA  (MWK)</comment>
        <translation>Malavi: kwacha (MWK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MEXICO_NEW_PESO_MXN</source>
        <comment>MEXICO  NEW PESO  (MXN)</comment>
        <translation>Meksika: yeni peso (MXN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALAYSIA_RINGGIT_MYR</source>
        <comment>MALAYSIA  RINGGIT  (MYR)</comment>
        <translation>Malezya: ringgit (MYR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MOZAMBIQUE_METICAL_MZM</source>
        <comment>MOZAMBIQUE  METICAL  (MZM)</comment>
        <translation>Mozambik: metikal (MZM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NAMIBIA_DOLLAR_NAD</source>
        <comment>NAMIBIA  DOLLAR  (NAD)</comment>
        <translation>Namibya: dolar (NAD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NIGERIA_NAIRA_NGN</source>
        <comment>NIGERIA  NAIRA  (NGN)</comment>
        <translation>Nijerya: naira (NGN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NICARAGUA_GOLD_CORDOBA_NIO</source>
        <comment>NICARAGUA  GOLD CÓRDOBA  (NIO)</comment>
        <translation>Nikaragua: altın kordoba (NIO)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NETHERLANDS_GUILDER_NLG</source>
        <comment>NETHERLANDS  GUILDER  (NLG)</comment>
        <translation>Hollanda: gulden (NLG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NORWAY_KRONA_NOK</source>
        <comment>NORWAY  KRONA  (NOK)</comment>
        <translation>Norveç: kron (NOK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NEPAL_RUPEE_NPW</source>
        <comment>NEPAL  RUPEE  (NPW)</comment>
        <translation>Nepal: rupi (NPW)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NEW_ZEALAND_DOLLAR_NZD</source>
        <comment>NEW ZEALAND  DOLLAR  (NZD)</comment>
        <translation>Yeni Zelanda: dolar (NZD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_OMAN_RIAL_OMR</source>
        <comment>OMAN  RIAL  (OMR)</comment>
        <translation>Umman: riyal (OMR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PANAMA_BALBOA_PAB</source>
        <comment>PANAMA  BALBOA  (PAB)</comment>
        <translation>Panama: balboa (PAB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PERU_NEW_SOL_PEN</source>
        <comment>PERU  NEW SOL  (PEN)</comment>
        <translation>Peru: yeni sol (PEN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PAPUA_NEW_GUINEA_KINA_PGK</source>
        <comment>PAPUA NEW GUINEA  KINA  (PGK)</comment>
        <translation>Papua Yeni Gine: kina (PGK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PHILIPPINES_PESO_PHP</source>
        <comment>PHILIPPINES  PESO  (PHP)</comment>
        <translation>Filipinler: peso (PHP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PAKISTAN_RUPEE_PYK</source>
        <comment>PAKISTAN  RUPEE  (PYK)</comment>
        <translation>Pakistan: rupi (PYK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_POLAND_ZLOTY_PLN</source>
        <comment>POLAND  ZLOTY  (PLN)</comment>
        <translation>Polonya: zloti (PLN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PORTUGAL_ESCUDO_PTE</source>
        <comment>PORTUGAL  ESCUDO  (PTE)</comment>
        <translation>Portekiz: eskudo (PTE)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PARAGUAY_GUARANI_PYG</source>
        <comment>PARAGUAY  GUARANI  (PYG)</comment>
        <translation>Paraguay: guarani (PYG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_QATAR_RIYAL_QAR</source>
        <comment>QATAR  RIYAL  (QAR)</comment>
        <translation>Katar: riyal (QAR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ROMANIA_LEU_ROL</source>
        <comment>ROMANIA  LEU  (ROL)</comment>
        <translation>Romanya: ley (ROL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_AZERBAIJAN_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION AZERBAIJAN  ROUBLE  (RUB)</comment>
        <translation>Rusya Federasyonu, Azerbaycan: ruble (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_BELARUS_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION BELARUS  ROUBLE  (RUB)</comment>
        <translation>Rusya Federasyonu, Belarus: ruble (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_TADZIKISTAN_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION TADZIKISTAN  ROUBLE  (RUB)</comment>
        <translation>Rusya Federasyonu, Tacikistan: ruble (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_UZBEKISTAN_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION UZBEKISTAN  ROUBLE  (RUB)</comment>
        <translation>Rusya Federasyonu, Özbekistan: ruble (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUANDA_FRANC_RWF</source>
        <comment>RUANDA  FRANC  (RWF)</comment>
        <translation>Ruanda: frank (RWF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAUDI_ARABIA_RIYAL_SAR</source>
        <comment>SAUDI ARABIA  RIYAL  (SAR)</comment>
        <translation>Suudi Arabistan: riyal (SAR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SALOMON_ISLES_DOLLAR_SBD</source>
        <comment>SALOMON ISLES  DOLLAR  (SBD)</comment>
        <translation>Solomon Adaları: dolar (SBD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SEYCHELLES_RUPEE_SCR</source>
        <comment>SEYCHELLES  RUPEE  (SCR)</comment>
        <translation>Seyşeller: rupi (SCR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SUDAN_DINAR_SDD</source>
        <comment>SUDAN  DINAR  (SDD)</comment>
        <translation>Sudan: dinar (SDD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SWEDEN_KRONER_SEK</source>
        <comment>SWEDEN  KRONER  (SEK)</comment>
        <translation>İsveç: kron (SEK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SINGAPORE_DOLLAR_SGD</source>
        <comment>SINGAPORE  DOLLAR  (SGD)</comment>
        <translation>Singapur: dolar (SGD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_HELENS_POUND_SHP</source>
        <comment>ST. HELENS  POUND  (SHP)</comment>
        <translation>Saint Helena: lira (SHP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SLOVENIA_TOLAR_SIT</source>
        <comment>SLOVENIA  TOLAR  (SIT)</comment>
        <translation>Slovenya: tolar (SIT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SLOVAKIA_KORUNA_SKK</source>
        <comment>SLOVAKIA  KORUNA  (SKK)</comment>
        <translation>Slovakya: koruna (SKK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SIERRA_LEONE_LEONE_SLL</source>
        <comment>SIERRA LEONE  LEONE  (SLL)</comment>
        <translation>Sierra Leone: leone (SLL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SOMALIA_SHILLING_SOS</source>
        <comment>SOMALIA  SHILLING  (SOS)</comment>
        <translation>Somali: şilin (SOS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SURINAM_GUILDER_SRG</source>
        <comment>SURINAM  GUILDER  (SRG)</comment>
        <translation>Surinam: gulden (SRG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAO_TOME_PRINCIPE_DOBRA_SRD</source>
        <comment>SÃO TOMÉ; PRINCIPE  DOBRA  (SRD)</comment>
        <translation>São Tomé, Príncipe: dobra (SRD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EL_SALVADOR_COLON_SVC</source>
        <comment>EL SALVADOR  COLÓN  (SVC)</comment>
        <translation>El Salvador: kolon (SVC)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SYRIA_POUND_SYP</source>
        <comment>SYRIA  POUND  (SYP)</comment>
        <translation>Suriye: lira (SYP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SWAZILAND_LILANGENI_PL_EMALANGENI_SZL</source>
        <comment>SWAZILAND  LILANGENI (Pl.: EMALANGENI)  (SZL)</comment>
        <translation>Svaziland: lilangeni (SZL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_THAILAND_BAHT_THB</source>
        <comment>THAILAND  BAHT  (THB)</comment>
        <translation>Tayland: baht (THB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TURKMENISTAN_MANAT_TMM</source>
        <comment>TURKMENISTAN  MANAT  (TMM)</comment>
        <translation>Türkmenistan: manat (TMM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TUNESIA_DINAR_TND</source>
        <comment>TUNESIA  DINAR  (TND)</comment>
        <translation>Tunus: dinar (TND)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TONGA_PAANGA_TOP</source>
        <comment>TONGA  PA'ANGA  (TOP)</comment>
        <translation>Tonga: paʻanga (TOP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TURKEY_LIRA_TRL</source>
        <comment>TURKEY  LIRA  (TRL)</comment>
        <translation>Türkiye: lira (TRL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TRINIDAD_TOBAGO_DOLLAR_TTD</source>
        <comment>TRINIDAD; TOBAGO  DOLLAR  (TTD)</comment>
        <translation>Trinidad, Tobago: dolar (TTD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TAIWAN_DOLLAR_TWD</source>
        <comment>TAIWAN  DOLLAR  (TWD)</comment>
        <translation>Tayvan: dolar (TWD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TANZANIA_SHILLING_TZS</source>
        <comment>TANZANIA  SHILLING  (TZS)</comment>
        <translation>Tanzanya: şilin (TZS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UKRAINE_HRYVNIA_UAH</source>
        <comment>UKRAINE  HRYVNIA  (UAH)</comment>
        <translation>Ukrayna: grivna (UAH)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UGANDA_SHILLING_UGX</source>
        <comment>UGANDA  SHILLING  (UGX)</comment>
        <translation>Uganda: şilin (UGX)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_USA_DOLLAR_USD</source>
        <comment>USA  DOLLAR  (USD)</comment>
        <translation>ABD: dolar (USD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_URUGUAY_PESO_UYU</source>
        <comment>URUGUAY  PESO  (UYU)</comment>
        <translation>Uruguay: peso (UYU)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UZBEKISTAN_SUM_UZS</source>
        <comment>UZBEKISTAN  SUM  (UZS)</comment>
        <translation>Özbekistan: som (UZS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VENEZUELA_BOLIVAR_VEB</source>
        <comment>VENEZUELA  BOLIVAR  (VEB)</comment>
        <translation>Venezuela: bolivar (VEB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VIETNAM_DONG_VND</source>
        <comment>VIETNAM  DONG  (VND)</comment>
        <translation>Vietnam: dong (VND)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VANUATU_VATU_VUV</source>
        <comment>VANUATU  VATU  (VUV)</comment>
        <translation>Vanuatu: vatu (VUV)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAMOA_TALA_WST</source>
        <comment>SAMOA  TALA  (WST)</comment>
        <translation>Samoa: tala (WST)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_CHAD_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC CHAD CFA-FRANC  (XAF)</comment>
        <translation>Orta Afrika Cumhuriyeti, Çad: CFA frangı (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_EQUATORIAL_GUINEA_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC EQUATORIAL GUINEA CFA-FRANC  (XAF)</comment>
        <translation>Orta Afrika Cumhuriyeti, Ekvator Ginesi: CFA frangı (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_GABUN_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC GABUN CFA-FRANC  (XAF)</comment>
        <translation>Orta Afrika Cumhuriyeti, Gabon: CFA frangı (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_CAMEROON_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC CAMEROON CFA-FRANC  (XAF)</comment>
        <translation>Orta Afrika Cumhuriyeti, Kamerun: CFA frangı (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_CONGO_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC CONGO  CFA-FRANC  (XAF)</comment>
        <translation>Orta Afrika Cumhuriyeti, Kongo: CFA frangı (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ANGUILLA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ANGUILLA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Anguilla: Doğu Karayip doları (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ANTIGUA_AND_BARBUDA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ANTIGUA AND BARBUDA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Antigua ve Barbuda: Doğu Karayip doları (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DOMINICA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>DOMINICA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Dominika: Doğu Karayip doları (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GRENADA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>GRENADA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Grenada: Doğu Karayip doları (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MONTSERRAT_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>MONTSERRAT EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Montserrat: Doğu Karayip doları (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_KITTS_AND_NEVIS_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ST. KITTS AND NEVIS EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Saint Kitts ve Nevis: Doğu Karayip doları (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_LUCIA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ST. LUCIA  EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Saint Lucia: Doğu Karayip doları (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_VINCENT_AND_GRENADINES_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ST. VINCENT AND GRENADINES  EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Saint Vincent ve Grenadinler: Doğu Karayip doları (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EUROPEAN_UNION_EUROPEAN_CURRENCY_UNIT_XEU</source>
        <comment>EUROPEAN UNION  EUROPEAN CURRENCY UNIT  (XEU)</comment>
        <translation>Avrupa Birliği: Avrupa para birimi (XEU)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BENIN_CFA_FRANC_XOF</source>
        <comment>BENIN  CFA-FRANC  (XOF)</comment>
        <translation>Benin: CFA frangı (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BURKINA_FASO_CFA_FRANC_XOF</source>
        <comment>BURKINA FASO CFA-FRANC  (XOF)</comment>
        <translation>Burkina Faso: CFA frangı (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IVORY_COAST_CFA_FRANC_XOF</source>
        <comment>IVORY COAST CFA-FRANC  (XOF) </comment>
        <translation>Fildişi Sahili: CFA frangı (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALI_CFA_FRANC_XOF</source>
        <comment>MALI CFA-FRANC  (XOF)</comment>
        <translation>Mali: CFA frangı (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NIGER_CFA_FRANC_XOF</source>
        <comment>NIGER CFA-FRANC  (XOF)</comment>
        <translation>Nijer: CFA frangı (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SENEGAL_CFA_FRANC_XOF</source>
        <comment>SENEGAL CFA-FRANC  (XOF) </comment>
        <translation>Senegal: CFA frangı (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TOGO_CFA_FRANC_XOF</source>
        <comment>TOGO  CFA-FRANC  (XOF)</comment>
        <translation>Togo: CFA frangı (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_YEMEN_RIAL_YER</source>
        <comment>YEMEN  RIAL  (YER)</comment>
        <translation>Yemen: riyal (YER)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_YUGOSLAVIA_DINAR_YUN</source>
        <comment>YUGOSLAVIA  DINAR  (YUN)</comment>
        <translation>Yugoslavya: dinar (YUN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SOUTH_AFRICA_LESOTHO_RAND_FINANCE_ZAL</source>
        <comment>SOUTH AFRICA; LESOTHO  RAND (FINANCE)  (ZAL)</comment>
        <translation>Güney Afrika, Lesotho: finansal rand (ZAL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SOUTH_AFRICA_LESOTHO_NAMIBIA_RAND_ZAR</source>
        <comment>SOUTH AFRICA; LESOTHO; (NAMIBIA) RAND  (ZAR)</comment>
        <translation>Güney Afrika, Lesotho, Namibya: rand (ZAR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAMBIA_KWACHA_ZMK</source>
        <comment>SAMBIA  KWACHA  (ZMK)</comment>
        <translation>Zambiya: kwacha (ZMK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZAIRE_NEW_ZAIRE_ZRN</source>
        <comment>ZAIRE  NEW ZAIRE  (ZRN)</comment>
        <translation>Zaire: yeni zaire (ZRN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZIMBABWE_DOLLAR_ZWD</source>
        <comment>ZIMBABWE  DOLLAR  (ZWD)</comment>
        <translation>Zimbabve: dolar (ZWD)</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallCostsView</name>
    <message>
        <source>TXT_RID_HEADER_CREDIT_AVAILABLE</source>
        <comment>Credit Available</comment>
        <translation>Kalan kredi</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_CURRENT_CREDIT_AVAILABLE_IS_2</source>
        <comment>Your current credit available is %1 units</comment>
        <translation>Kalan krediniz: %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_EXPIRATION_DATE</source>
        <comment>Expiration Date</comment>
        <translation>Son kullanma tarihi</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_REMAINING_CREDIT_WILL_EXPIRE_ON_1</source>
        <comment>Your remaining credit will expire on %1</comment>
        <translation>Kalan kredinizin süresi %1 tarihinde dolacak</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_LAST_DEPOSIT</source>
        <comment>Last Deposit</comment>
        <translation>Son yükleme</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_LAST_DEPOSIT_AMOUNT_WAS_1_UNITS</source>
        <comment>Your last deposit amount was %1</comment>
        <translation>Son yüklediğiniz tutar: %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_LAST_CALL</source>
        <comment>Last Call</comment>
        <translation>Son arama</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_LAST_CALL_WAS_1_UNITS</source>
        <comment>The cost of your last call was %1</comment>
        <translation>Son aramanızın ücreti: %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DIALED_CALLS</source>
        <comment>Dialed Calls</comment>
        <translation>Yapılan aramalar</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_DIALED_CALLS_IS_1_UNITS</source>
        <comment>The cost of your dialed calls is %1</comment>
        <translation>Yaptığınız aramaların ücreti: %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ANSWERED_CALLS</source>
        <comment>Answered Calls</comment>
        <translation>Yanıtlanan aramalar</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_ANSWERED_CALLS_IS_1_UNITS</source>
        <comment>The cost of your answered calls is %1</comment>
        <translation>Yanıtladığınız aramaların ücreti: %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ALL_CALLS</source>
        <comment>All Calls</comment>
        <translation>Tüm aramalar</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_ALL_CALLS_IS_1_UNITS</source>
        <comment>The cost of all your calls is %1</comment>
        <translation>Tüm aramalarınızın ücreti: %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_COSTS</source>
        <comment>Call Costs</comment>
        <translation>Arama ücretleri</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Geri</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallDataTimesView</name>
    <message>
        <source>TXT_RID_HEADER_DATA_TIMES</source>
        <comment>Data Times</comment>
        <translation>Veri süreleri</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_CURRENT_2_DATA_SESSION_TIME_IS_1</source>
        <comment>The current Data Session time for %2 is %1.</comment>
        <translation>%2 için geçerli veri oturumunun süresi: %1.</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_TOTAL_TIME_FOR_ALL_YOUR_GPRS_DATA_SESSIONS_IS_1</source>
        <comment>The total time for all your data sessions is %1.</comment>
        <translation>Tüm veri oturumlarınızın toplam süresi: %1.</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_RESET</source>
        <comment>Reset</comment>
        <translation>Sıfırla</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ARE_YOU_SURE_YOU_WANT_TO_RESET_DATA_SESSIONS_TIMER</source>
        <comment>Are you sure you want to reset the data sessions timer?</comment>
        <translation>Veri oturumlarının süresini sıfırlamak istediğinizden emin misiniz?</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Geri</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallDataVolumesDetailView</name>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_YOUR_SENT_DATA_VOLUME_IS_1</source>
        <comment>Your sent data volume is %1</comment>
        <translation>Gönderdiğiniz veri miktarı: %1</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_YOUR_RECEIVED_DATA_VOLUME_IS_1</source>
        <comment>Your received data volume is %1</comment>
        <translation>Aldığınız veri miktarı: %1</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_YOUR_TOTAL_DATA_TRANSFER_VOLUME_IS_1</source>
        <comment>Your total data transfer volume is %1</comment>
        <translation>Aktardığınız toplam veri miktarı: %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_VOLUME</source>
        <comment>Data Volume</comment>
        <translation>Veri miktarı</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Geri</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallDataVolumesView</name>
    <message>
        <source>TXT_RID_HEADER_RESET</source>
        <comment>Reset</comment>
        <translation>Sıfırla</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ARE_YOU_SURE_YOU_WANT_TO_RESET_DATA_SESSIONS_VOLUME</source>
        <comment>Are you sure you want to reset the data sessions volume?</comment>
        <translation>Veri oturumlarının miktarını sıfırlamak istediğinizden emin misiniz?</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_VOLUMES</source>
        <comment>Data Volumes</comment>
        <translation>Veri miktarları</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Geri</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallMeter</name>
    <message>
        <source>TXT_RID_LIST_A_UNITS</source>
        <comment>units</comment>
        <translation>birim</translation>
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
        <translation>Yapılan aramaların süresini sıfırlamak istiyor musunuz?</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_RESET_ANSWERED_CALLS_TIMER</source>
        <comment>Would you like to reset the Answered Calls timer?</comment>
        <translation>Yanıtlanan aramaların süresini sıfırlamak istiyor musunuz?</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_RESET_CIRCUIT_SWITCHING_DATA_CALLS_TIMER</source>
        <comment>Would you like to reset the Circuit Switching Data Calls timer?</comment>
        <translation>Devre anahtarlamalı veri aramalarının süresini sıfırlamak istiyor musunuz?</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_RESET_ALL_CALLS_TIMER</source>
        <comment>Would you like to reset the All Calls timer?</comment>
        <translation>Tüm aramaların süresini sıfırlamak istiyor musunuz?</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_RESET_TIMER</source>
        <comment>Reset Timer</comment>
        <translation>Süreyi sıfırla</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_CURRENT_REQUEST_CANNOT_BE_COMPLETED_WHILE_YOU_ARE_IN_CALLING</source>
        <comment>Current request cannot be completed, while you are in calling. </comment>
        <translation>Arama sürerken bu işlem yapılamaz.</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_TIMES</source>
        <comment>Call Times</comment>
        <translation>Arama süreleri</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Geri</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Kullanım: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[seçenekler]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Seçenekler:</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Bağımsız değişkenler:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Sürümü gösterir.</translation>
    </message>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Bu yardımı gösterir.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Yardımı Qt'ye özgü seçeneklerle gösterir.</translation>
    </message>
    <message>
        <source>Unknown option '%1'.</source>
        <translation>Bilinmeyen seçenek “%1”.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Bilinmeyen seçenekler: %1.</translation>
    </message>
    <message>
        <source>Missing value after '%1'.</source>
        <translation>“%1” ardından değer eksik.</translation>
    </message>
    <message>
        <source>Unexpected value after '%1'.</source>
        <translation>“%1” ardından beklenmeyen değer.</translation>
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
        <translation>Tümünü sıfırla</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_ALL_CALL_COSTS</source>
        <comment>Reset All Call Costs</comment>
        <translation>Tüm ücretleri sıfırla</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_DIALED_CALL_COSTS</source>
        <comment>Reset Dialed Call Costs</comment>
        <translation>Yapılanları sıfırla</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_ANSWERED_CALL_COSTS</source>
        <comment>Reset Answered Call Costs</comment>
        <translation>Yanıtlananları sıfırla</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CREDIT_LIMIT</source>
        <comment>Credit Limit</comment>
        <translation>Kredi sınırı</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ADJUST_CREDIT_LIMIT</source>
        <comment>Adjust Credit Limit</comment>
        <translation>Sınırı ayarla</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CURRENCY</source>
        <comment>Currency</comment>
        <translation>Para birimi</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CURRENCY_TYPE</source>
        <comment>Currency Type</comment>
        <translation>Para birimi türü</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_COST_PER_MINUTE</source>
        <comment>Cost Per Minute</comment>
        <translation>Dakika ücreti</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CREDIT_AVAILABLE</source>
        <comment>Credit Available</comment>
        <translation>Kalan kredi</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_EXPIRATION_DATE</source>
        <comment>Expiration Date</comment>
        <translation>Son kullanma tarihi</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LAST_DEPOSIT</source>
        <comment>Last Deposit</comment>
        <translation>Son yükleme</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LAST_CALL_COST</source>
        <comment>Last Call Cost</comment>
        <translation>Son arama ücreti</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_DIALED_CALLS_COST</source>
        <comment>Dialed Calls Cost</comment>
        <translation>Yapılanların ücreti</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ANSWERED_CALLS_COST</source>
        <comment>Answered Calls Cost</comment>
        <translation>Yanıtlananların ücreti</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ALL_CALLS_COST</source>
        <comment>All Calls Cost</comment>
        <translation>Toplam ücret</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CALL_COST_SETUP</source>
        <comment>Call Cost Setup</comment>
        <translation>Ücret ayarları</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_RECENT_DATA_SESSION</source>
        <comment>Current Data Session</comment>
        <translation>Geçerli veri oturumu</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_GPRS_DATA_SESSION_1</source>
        <comment>GPRS Data Session 1</comment>
        <translation>GPRS veri oturumu 1</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_GPRS_DATA_SESSION_2</source>
        <comment>GPRS Data Session 2</comment>
        <translation>GPRS veri oturumu 2</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_GPRS_DATA_SESSION_3</source>
        <comment>GPRS Data Session 3</comment>
        <translation>GPRS veri oturumu 3</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_ALL_DATA_SESSIONS</source>
        <comment>All Data Sessions</comment>
        <translation>Tüm veri oturumları</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_TOTAL_TIME</source>
        <comment>Total Time</comment>
        <translation>Toplam süre</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_ALL_DATA_SESSIONS</source>
        <comment>Reset All Data Sessions</comment>
        <translation>Oturumları sıfırla</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_SENT</source>
        <comment>Sent</comment>
        <translation>Gönderilen</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RECEIVED</source>
        <comment>Received</comment>
        <translation>Alınan</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_SUM</source>
        <comment>Sum</comment>
        <translation>Toplam</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_TOTAL_DATA_TRANSFERRED</source>
        <comment>Total Data Transferred</comment>
        <translation>Aktarılan toplam</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_GPRS_DATA_SESSION_1</source>
        <comment>GPRS Data Session 1</comment>
        <translation>GPRS veri oturumu 1</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_GPRS_DATA_SESSION_2</source>
        <comment>GPRS Data Session 2</comment>
        <translation>GPRS veri oturumu 2</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_GPRS_DATA_SESSION_3</source>
        <comment>GPRS Data Session 3</comment>
        <translation>GPRS veri oturumu 3</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LAST_CALL</source>
        <comment>Last Call</comment>
        <translation>Son arama</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_DIALED_CALLS</source>
        <comment>Dialed Calls</comment>
        <translation>Yapılan aramalar</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ANSWERED_CALLS</source>
        <comment>Answered Calls</comment>
        <translation>Yanıtlanan aramalar</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CIRCUIT_SWITCH_DATA_CALLS</source>
        <comment>Data Calls</comment>
        <translation>Veri aramaları</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ALL_CALLS</source>
        <comment>All Calls</comment>
        <translation>Tüm aramalar</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LIFETIME_CALLS</source>
        <comment>Lifetime Calls</comment>
        <translation>Baştan beri tümü</translation>
    </message>
</context>
<context>
    <name>ReadFile</name>
    <message>
        <source>there is none</source>
        <translation>dosya yok</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>olağan bir dosya değil</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>%1 MiB'den büyük</translation>
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
        <translation>PIN1'i girin</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_WRONG_PIN1</source>
        <comment>Wrong PIN1</comment>
        <translation>Yanlış PIN1</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_PIN1_IS_BLOCKED</source>
        <comment>PIN1 is blocked. Only PUK1 can unblock it.</comment>
        <translation>PIN1 kilitli. Yalnızca PUK1 ile açılabilir.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_SIM_CANNOT_BE_ASKED_PIN1</source>
        <comment>The SIM card cannot be asked for PIN1.</comment>
        <translation>SIM kartta PIN1 sorulamıyor.</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_PIN2</source>
        <comment>PIN2</comment>
        <translation>PIN2</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ENTER_PIN2</source>
        <comment>Enter PIN2</comment>
        <translation>PIN2'yi girin</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_WRONG_PIN2</source>
        <comment>Wrong PIN2</comment>
        <translation>Yanlış PIN2</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_PIN2_IS_BLOCKED</source>
        <comment>PIN2 is blocked. Only PUK2 can unblock it.</comment>
        <translation>PIN2 kilitli. Yalnızca PUK2 ile açılabilir.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_SIM_CANNOT_BE_ASKED_PIN2</source>
        <comment>The SIM card cannot be asked for PIN2.</comment>
        <translation>SIM kartta PIN2 sorulamıyor.</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_OK</source>
        <comment>OK</comment>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_CANCEL</source>
        <comment>Cancel</comment>
        <translation>İptal</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_TRIES_LEFT_1</source>
        <comment>Tries left: %1</comment>
        <translation>Kalan deneme: %1</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_4_TO_8_DIGITS</source>
        <comment>4 to 8 digits</comment>
        <translation>4 ile 8 rakam arası</translation>
    </message>
</context>
<context>
    <name>ZMessageDlg</name>
    <message>
        <source>TXT_RID_SOFTKEY_YES</source>
        <comment>Yes</comment>
        <translation>Evet</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_NO</source>
        <comment>No</comment>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_OK</source>
        <comment>OK</comment>
        <translation>Tamam</translation>
    </message>
</context>
<context>
    <name>ZNoticeDlg</name>
    <message>
        <source>TXT_RID_SOFTKEY_OK</source>
        <comment>OK</comment>
        <translation>Tamam</translation>
    </message>
</context>
<context>
    <name>ZSingleCaptureDlg</name>
    <message>
        <source>TXT_RID_SOFTKEY_OK</source>
        <comment>OK</comment>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_CANCEL</source>
        <comment>Cancel</comment>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>ZSingleSelectDlg</name>
    <message>
        <source>TXT_RID_SOFTKEY_SELECT</source>
        <comment>Select</comment>
        <translation>Seç</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_CANCEL</source>
        <comment>Cancel</comment>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>ZSoftKey</name>
    <message>
        <source>TXT_RID_LABEL_LEFT_SOFTKEY</source>
        <comment>Left softkey</comment>
        <translation>Sol tuş</translation>
    </message>
    <message>
        <source>TXT_RID_LABEL_RIGHT_SOFTKEY</source>
        <comment>Right softkey</comment>
        <translation>Sağ tuş</translation>
    </message>
</context>
<context>
    <name>handset</name>
    <message>
        <source>The call log is damaged. The next start begins a new one, with what can be read of it.</source>
        <translation>Arama kaydı bozuk. Sonraki başlatma, okunabilenlerle yeni bir kayıt başlatır.</translation>
    </message>
    <message>
        <source>The call log is damaged, and that cannot be noted for the next start.</source>
        <translation>Arama kaydı bozuk ve bu, sonraki başlatma için not edilemiyor.</translation>
    </message>
    <message>
        <source>Copying the call log</source>
        <translation>Arama kaydı kopyalanıyor</translation>
    </message>
    <message>
        <source>Reading the damaged call log once more</source>
        <translation>Bozuk arama kaydı yeniden okunuyor</translation>
    </message>
    <message>
        <source>Writing the new call log to the disk</source>
        <translation>Yeni arama kaydı diske yazılıyor</translation>
    </message>
    <message>
        <source>Checking the new call log</source>
        <translation>Yeni arama kaydı denetleniyor</translation>
    </message>
    <message>
        <source>Looking for the end of the damage</source>
        <translation>Bozukluğun sonu aranıyor</translation>
    </message>
    <message>
        <source>Counting what was read</source>
        <translation>Okunanlar sayılıyor</translation>
    </message>
    <message>
        <source>Bringing the call log up to date</source>
        <translation>Arama kaydı güncelleniyor</translation>
    </message>
    <message>
        <source>belongs to another user</source>
        <translation>başka bir kullanıcınındır</translation>
    </message>
    <message>
        <source>may be written by other users</source>
        <translation>başka kullanıcılarca yazılabilir</translation>
    </message>
    <message>
        <source>The state directory "%1" %2, who can change what is kept in it.</source>
        <translation>"%1" durum dizini %2; onlar içindekileri değiştirebilir.</translation>
    </message>
    <message>
        <source>The state directory "%1" lies in one that may be written by other users, who can put another in its place.</source>
        <translation>"%1" durum dizini, başka kullanıcıların yazabildiği bir dizinde; onlar yerine başkasını koyabilir.</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>%1 bekleniyor</translation>
    </message>
    <message>
        <source>another process</source>
        <translation>başka bir süreç</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>başarısız</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>bilinmiyor</translation>
    </message>
    <message>
        <source>initializing</source>
        <translation>başlatılıyor</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>kilitli</translation>
    </message>
    <message>
        <source>locked: PIN</source>
        <translation>kilitli: PIN</translation>
    </message>
    <message>
        <source>locked: PIN2</source>
        <translation>kilitli: PIN2</translation>
    </message>
    <message>
        <source>locked: PUK</source>
        <translation>kilitli: PUK</translation>
    </message>
    <message>
        <source>locked: PUK2</source>
        <translation>kilitli: PUK2</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>kapalı</translation>
    </message>
    <message>
        <source>disabling</source>
        <translation>kapatılıyor</translation>
    </message>
    <message>
        <source>enabling</source>
        <translation>açılıyor</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>açık</translation>
    </message>
    <message>
        <source>searching</source>
        <translation>ağ aranıyor</translation>
    </message>
    <message>
        <source>registered</source>
        <translation>kayıtlı</translation>
    </message>
    <message>
        <source>disconnecting</source>
        <translation>bağlantı kesiliyor</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>bağlanıyor</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>bağlı</translation>
    </message>
    <message>
        <source>unregistered</source>
        <translation>kayıtlı değil</translation>
    </message>
    <message>
        <source>denied</source>
        <translation>ağ tarafından reddedildi</translation>
    </message>
    <message>
        <source>roaming</source>
        <translation>dolaşımda</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>çevrimdışı</translation>
    </message>
    <message>
        <source>%1 is not running</source>
        <translation>%1 çalışmıyor</translation>
    </message>
    <message>
        <source>asking %1</source>
        <translation>%1 soruluyor</translation>
    </message>
    <message>
        <source>no modem</source>
        <translation>modem yok</translation>
    </message>
    <message>
        <source>%1 does not let this user talk to it</source>
        <translation>%1 bu kullanıcının kendisiyle konuşmasına izin vermiyor</translation>
    </message>
    <message>
        <source>%1 does not tell its modems</source>
        <translation>%1 modemlerini bildirmiyor</translation>
    </message>
    <message>
        <source>There is no system bus: %1</source>
        <translation>Sistem veri yolu yok: %1</translation>
    </message>
    <message>
        <source>ModemManager does not answer</source>
        <translation>ModemManager yanıt vermiyor</translation>
    </message>
    <message>
        <source>The call cannot be made</source>
        <translation>Arama yapılamıyor</translation>
    </message>
    <message>
        <source>The call cannot be made: %1.</source>
        <translation>Arama yapılamıyor: %1.</translation>
    </message>
    <message>
        <source>The call cannot be answered</source>
        <translation>Arama yanıtlanamıyor</translation>
    </message>
    <message>
        <source>The call cannot be ended</source>
        <translation>Arama bitirilemiyor</translation>
    </message>
    <message>
        <source>it is busy</source>
        <translation>meşgul</translation>
    </message>
    <message>
        <source>it is not ready for that</source>
        <translation>buna hazır değil</translation>
    </message>
    <message>
        <source>the modem cannot do that</source>
        <translation>modem bunu yapamaz</translation>
    </message>
    <message>
        <source>that is no number to call</source>
        <translation>bu aranacak bir numara değil</translation>
    </message>
    <message>
        <source>there is no network</source>
        <translation>şebeke yok</translation>
    </message>
    <message>
        <source>this user may not</source>
        <translation>bu kullanıcının izni yok</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>yanıt vermiyor</translation>
    </message>
    <message>
        <source>it failed (%1)</source>
        <translation>başarısız oldu (%1)</translation>
    </message>
    <message>
        <source>The network has not put the call through.</source>
        <translation>Şebeke aramayı bağlamadı.</translation>
    </message>
    <message>
        <source>The telephone does not dial: %1.</source>
        <translation>Telefon aramıyor: %1.</translation>
    </message>
    <message>
        <source>The telephone does not take the call: %1.</source>
        <translation>Telefon aramayı yanıtlamıyor: %1.</translation>
    </message>
    <message>
        <source>The telephone does not end the call: %1.</source>
        <translation>Telefon aramayı bitirmiyor: %1.</translation>
    </message>
</context>
<context>
    <name>host::AccountSection</name>
    <message>
        <source>Nothing has been paid in.</source>
        <translation>Henüz yükleme yapılmadı.</translation>
    </message>
    <message>
        <source>Credit: %1</source>
        <translation>Kredi: %1</translation>
    </message>
    <message>
        <source>Last deposit: %1, good until %2</source>
        <translation>Son yükleme: %1, %2 tarihine kadar geçerli</translation>
    </message>
    <message>
        <source>Prepaid account</source>
        <translation>Ön ödemeli hesap</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Kredi</translation>
    </message>
    <message>
        <source>Last deposit</source>
        <translation>Son yükleme</translation>
    </message>
    <message>
        <source>Amount to pay in</source>
        <translation>Yüklenecek tutar</translation>
    </message>
    <message>
        <source>In units or in the currency, as costs are</source>
        <translation>Ücretler gibi, birim ya da para birimi olarak</translation>
    </message>
    <message>
        <source>Why nothing was paid in</source>
        <translation>Yüklemenin neden yapılmadığı</translation>
    </message>
    <message>
        <source>Good until</source>
        <translation>Geçerlilik sonu</translation>
    </message>
    <message>
        <source>Until when the deposit is good: year, month, day</source>
        <translation>Yüklemenin ne zamana kadar geçerli olduğu: yıl, ay, gün</translation>
    </message>
    <message>
        <source>&amp;Top up</source>
        <translation>&amp;Yükle</translation>
    </message>
    <message>
        <source>Pays the amount in</source>
        <translation>Tutarı yükler</translation>
    </message>
    <message>
        <source>until</source>
        <translation>şu tarihe kadar</translation>
    </message>
</context>
<context>
    <name>host::CallNotice</name>
    <message>
        <source>Dialing</source>
        <translation>Aranıyor</translation>
    </message>
    <message>
        <source>Incoming call</source>
        <translation>Gelen arama</translation>
    </message>
    <message>
        <source>Call waiting</source>
        <translation>Bekleyen arama</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>Beklemede</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Bağlı</translation>
    </message>
    <message>
        <source>Number withheld</source>
        <translation>Gizli numara</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Arama</translation>
    </message>
    <message>
        <source>Number to dial</source>
        <translation>Aranacak numara</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Arama sona erdi</translation>
    </message>
    <message>
        <source>Not answered</source>
        <translation>Yanıtlanmadı</translation>
    </message>
</context>
<context>
    <name>host::CallsModel</name>
    <message>
        <source>Dialed, not answered</source>
        <translation>Yapılan, yanıtsız</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Cevapsız</translation>
    </message>
    <message>
        <source>Data call</source>
        <translation>Veri araması</translation>
    </message>
    <message>
        <source>Dialed</source>
        <translation>Yapılan</translation>
    </message>
    <message>
        <source>Answered</source>
        <translation>Yanıtlanan</translation>
    </message>
    <message>
        <source>number withheld</source>
        <translation>gizli numara</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Yön</translation>
    </message>
    <message>
        <source>Number and time</source>
        <translation>Numara ve zaman</translation>
    </message>
    <message>
        <source>Duration and cost</source>
        <translation>Süre ve ücret</translation>
    </message>
    <message>
        <source>units</source>
        <translation>birim</translation>
    </message>
</context>
<context>
    <name>host::CostSection</name>
    <message>
        <source>not available</source>
        <translation>yok</translation>
    </message>
    <message>
        <source>units</source>
        <translation>birim</translation>
    </message>
    <message>
        <source>Costs</source>
        <translation>Ücretler</translation>
    </message>
    <message>
        <source>Costs are in</source>
        <translation>Ücretlerin türü</translation>
    </message>
    <message>
        <source>the currency</source>
        <translation>para birimi</translation>
    </message>
    <message>
        <source>Price of a unit</source>
        <translation>Birim fiyatı</translation>
    </message>
    <message>
        <source>The price of a unit, as 0.23</source>
        <translation>Bir birimin fiyatı, örneğin 0.23</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Para birimi</translation>
    </message>
    <message>
        <source>The currency's code, at most three characters</source>
        <translation>Para biriminin kodu, en çok üç karakter</translation>
    </message>
    <message>
        <source>Credit limit</source>
        <translation>Kredi sınırı</translation>
    </message>
    <message>
        <source>Cost of the call</source>
        <translation>Aramanın ücreti</translation>
    </message>
    <message>
        <source>Why the costs were not set</source>
        <translation>Ücretlerin neden ayarlanmadığı</translation>
    </message>
    <message>
        <source>Set &amp;price</source>
        <translation>&amp;Fiyatı ayarla</translation>
    </message>
    <message>
        <source>Writes price and currency to the SIM card</source>
        <translation>Fiyatı ve para birimini SIM karta yazar</translation>
    </message>
    <message>
        <source>This call</source>
        <translation>Bu arama</translation>
    </message>
    <message>
        <source>Last call</source>
        <translation>Son arama</translation>
    </message>
    <message>
        <source>off</source>
        <translation>kapalı</translation>
    </message>
    <message>
        <source>%1; units left: %2</source>
        <translation>%1; kalan birim: %2</translation>
    </message>
    <message>
        <source>The modem's advice of charge says what calls cost.</source>
        <translation>Aramaların ücretini modemin ücret bildirimi söyler.</translation>
    </message>
    <message>
        <source>This telephone charges no calls by itself.</source>
        <translation>Bu telefon aramaları kendisi ücretlendirmez.</translation>
    </message>
</context>
<context>
    <name>host::Display</name>
    <message>
        <source>Display of the phone</source>
        <translation>Telefonun ekranı</translation>
    </message>
</context>
<context>
    <name>host::FailuresSection</name>
    <message>
        <source>Failures</source>
        <translation>Arızalar</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>İşlem</translation>
    </message>
    <message>
        <source>Let it &amp;fail</source>
        <translation>Başarısı&amp;z kıl</translation>
    </message>
    <message>
        <source>From now on the operation only answers the code</source>
        <translation>İşlem bundan sonra yalnızca kodu yanıtlar</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Kaldır</translation>
    </message>
    <message>
        <source>The chosen operation works again</source>
        <translation>Seçilen işlem yeniden çalışır</translation>
    </message>
    <message>
        <source>Remove a&amp;ll</source>
        <translation>&amp;Tümünü kaldır</translation>
    </message>
    <message>
        <source>Every operation works again</source>
        <translation>Tüm işlemler yeniden çalışır</translation>
    </message>
    <message>
        <source>What the phone's libraries ask of the telephone</source>
        <translation>Telefonun kitaplıklarının ondan istedikleri</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Kod</translation>
    </message>
    <message>
        <source>What the operation answers: a name, or a number; not Success</source>
        <translation>İşlemin yanıtı: bir ad ya da sayı; Success değil</translation>
    </message>
    <message>
        <source>Operations that fail</source>
        <translation>Başarısız olan işlemler</translation>
    </message>
    <message>
        <source>Failing now</source>
        <translation>Şimdi başarısız</translation>
    </message>
</context>
<context>
    <name>host::FiguresSection</name>
    <message>
        <source>Last call</source>
        <translation>Son arama</translation>
    </message>
    <message>
        <source>Dialed calls</source>
        <translation>Yapılan</translation>
    </message>
    <message>
        <source>Answered calls</source>
        <translation>Yanıtlanan</translation>
    </message>
    <message>
        <source>Data calls</source>
        <translation>Veri aramaları</translation>
    </message>
    <message>
        <source>All calls</source>
        <translation>Tüm aramalar</translation>
    </message>
    <message>
        <source>Lifetime calls</source>
        <translation>Baştan beri tümü</translation>
    </message>
    <message>
        <source>Call timers</source>
        <translation>Arama sayaçları</translation>
    </message>
    <message>
        <source>Add a &amp;ready-made history</source>
        <translation>&amp;Hazır geçmiş ekle</translation>
    </message>
    <message>
        <source>Adds a dozen calls of the last days to the call log</source>
        <translation>Kayda son günlerden bir düzine arama ekler</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>yok</translation>
    </message>
</context>
<context>
    <name>host::Keypad</name>
    <message>
        <source>Call</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Hang up</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Left softkey</source>
        <translation>Sol tuş</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Yukarı</translation>
    </message>
    <message>
        <source>Right softkey</source>
        <translation>Sağ tuş</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seç</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Aşağı</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>Yıldız</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>Kare</translation>
    </message>
    <message>
        <source>Keypad</source>
        <translation>Tuş takımı</translation>
    </message>
</context>
<context>
    <name>host::Line</name>
    <message>
        <source>Dialing</source>
        <translation>Aranıyor</translation>
    </message>
    <message>
        <source>Ringing</source>
        <translation>Çalıyor</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Bekliyor</translation>
    </message>
    <message>
        <source>On hold %1</source>
        <translation>Beklemede %1</translation>
    </message>
    <message>
        <source>Connected %1</source>
        <translation>Bağlı %1</translation>
    </message>
    <message>
        <source>No modem</source>
        <translation>Modem yok</translation>
    </message>
    <message>
        <source>number withheld</source>
        <translation>gizli numara</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Boşta</translation>
    </message>
    <message>
        <source>The credit limit is reached in %1 s.</source>
        <translation>Kredi sınırına %1 sn içinde ulaşılacak.</translation>
    </message>
    <message>
        <source>The credit is used up in %1 s.</source>
        <translation>Kredi %1 sn içinde bitecek.</translation>
    </message>
    <message>
        <source>The telephone has ended the call: the credit limit is reached.</source>
        <translation>Telefon aramayı bitirdi: kredi sınırına ulaşıldı.</translation>
    </message>
    <message>
        <source>The telephone has ended the call: the credit is used up.</source>
        <translation>Telefon aramayı bitirdi: kredi bitti.</translation>
    </message>
    <message>
        <source>This telephone cannot be driven from here.</source>
        <translation>Bu telefon buradan yönetilemez.</translation>
    </message>
    <message>
        <source>data call</source>
        <translation>veri araması</translation>
    </message>
    <message>
        <source>voice call</source>
        <translation>sesli arama</translation>
    </message>
    <message>
        <source>The call log cannot be written. The end of a call or a packet-data session is kept in memory, and written as soon as it can be.</source>
        <translation>Arama kaydına yazılamıyor. Bir aramanın ya da veri oturumunun bitişi bellekte tutuluyor ve yazılabildiğinde yazılacak.</translation>
    </message>
</context>
<context>
    <name>host::LineSection</name>
    <message>
        <source>&amp;Dial</source>
        <translation>&amp;Ara</translation>
    </message>
    <message>
        <source>Calls the number from this phone</source>
        <translation>Numarayı bu telefondan arar</translation>
    </message>
    <message>
        <source>&amp;Other side answers</source>
        <translation>Karşı &amp;taraf yanıtlasın</translation>
    </message>
    <message>
        <source>The called side answers; the call is connected</source>
        <translation>Aranan taraf yanıtlar; arama bağlanır</translation>
    </message>
    <message>
        <source>Dial d&amp;ata call</source>
        <translation>&amp;Veri araması yap</translation>
    </message>
    <message>
        <source>Sets up a circuit-switched data call to the number</source>
        <translation>Numarayla devre anahtarlamalı bir veri araması kurar</translation>
    </message>
    <message>
        <source>&amp;Incoming call</source>
        <translation>&amp;Gelen arama</translation>
    </message>
    <message>
        <source>The number calls this phone; empty for a withheld number</source>
        <translation>Numara bu telefonu arar; gizli numara için boş bırakın</translation>
    </message>
    <message>
        <source>&amp;Hang up</source>
        <translation>&amp;Kapat</translation>
    </message>
    <message>
        <source>Ends the call on the line, whatever its state</source>
        <translation>Hattaki aramayı, durumu ne olursa olsun bitirir</translation>
    </message>
    <message>
        <source>A&amp;nswer</source>
        <translation>&amp;Yanıtla</translation>
    </message>
    <message>
        <source>Answers the incoming call; the call is connected</source>
        <translation>Gelen aramayı yanıtlar; arama bağlanır</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Hat</translation>
    </message>
    <message>
        <source>State of the line</source>
        <translation>Hattın durumu</translation>
    </message>
    <message>
        <source>End of charging</source>
        <translation>Ücretlendirmenin sonu</translation>
    </message>
    <message>
        <source>What is not in the call log yet</source>
        <translation>Arama kaydında henüz olmayanlar</translation>
    </message>
    <message>
        <source>What the telephone has told</source>
        <translation>Telefonun bildirdikleri</translation>
    </message>
    <message>
        <source>Digits, +, * and #</source>
        <translation>Rakamlar, +, * ve #</translation>
    </message>
    <message>
        <source>Clear the number</source>
        <translation>Numarayı sil</translation>
    </message>
    <message>
        <source>N&amp;umber</source>
        <translation>&amp;Numara</translation>
    </message>
</context>
<context>
    <name>host::MenuScreen</name>
    <message>
        <source>TXT_RID_HEADER_RECENT_CALLS</source>
        <comment>Recent Calls</comment>
        <translation>Son aramalar</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_OPEN</source>
        <comment>Open</comment>
        <translation>Aç</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_EXIT</source>
        <comment>Exit</comment>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_TIMES</source>
        <comment>Call Times</comment>
        <translation>Arama süreleri</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_COSTS</source>
        <comment>Call Costs</comment>
        <translation>Arama ücretleri</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_TIMES</source>
        <comment>Data Times</comment>
        <translation>Veri süreleri</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_VOLUMES</source>
        <comment>Data Volumes</comment>
        <translation>Veri miktarları</translation>
    </message>
</context>
<context>
    <name>host::ModemSection</name>
    <message>
        <source>call times</source>
        <translation>arama süreleri</translation>
    </message>
    <message>
        <source>all calls</source>
        <translation>tüm aramalar</translation>
    </message>
    <message>
        <source>data calls</source>
        <translation>veri aramaları</translation>
    </message>
    <message>
        <source>data sessions</source>
        <translation>veri oturumları</translation>
    </message>
    <message>
        <source>advice of charge</source>
        <translation>ücret bildirimi</translation>
    </message>
    <message>
        <source>PIN2</source>
        <translation>PIN2</translation>
    </message>
    <message>
        <source>credit</source>
        <translation>kredi</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>hiçbir şey</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>bağlı</translation>
    </message>
    <message>
        <source>, %1 B sent, %2 B received</source>
        <translation>, %1 B gönderildi, %2 B alındı</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>bağlı değil</translation>
    </message>
    <message>
        <source>none</source>
        <translation>yok</translation>
    </message>
    <message>
        <source>Modem</source>
        <translation>Modem</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Şebeke</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Veri</translation>
    </message>
    <message>
        <source>Charged by</source>
        <translation>Ücretlendiren</translation>
    </message>
    <message>
        <source>Recorded by</source>
        <translation>Kaydeden</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Yok</translation>
    </message>
    <message>
        <source>%1, through %2</source>
        <translation>%1, %2 üzerinden</translation>
    </message>
    <message>
        <source>the modem's advice of charge</source>
        <translation>modemin ücret bildirimi</translation>
    </message>
    <message>
        <source>the tariff of this telephone</source>
        <translation>bu telefonun tarifesi</translation>
    </message>
    <message>
        <source>this window</source>
        <translation>bu pencere</translation>
    </message>
    <message>
        <source>another process</source>
        <translation>başka bir süreç</translation>
    </message>
    <message>
        <source>nobody: the call log cannot be written</source>
        <translation>kimse: arama kaydına yazılamıyor</translation>
    </message>
</context>
<context>
    <name>host::OpeningProgress</name>
    <message>
        <source>Opening the telephone</source>
        <translation>Telefon açılıyor</translation>
    </message>
    <message>
        <source>What is being done</source>
        <translation>Şu anda yapılan</translation>
    </message>
    <message>
        <source>How far it is</source>
        <translation>Ne kadarının bittiği</translation>
    </message>
</context>
<context>
    <name>host::PacketSection</name>
    <message>
        <source>%1 B sent, %2 B received</source>
        <translation>%1 B gönderildi, %2 B alındı</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>boş</translation>
    </message>
    <message>
        <source>%1 (id %2), %3
%4</source>
        <translation>%1 (kimlik %2), %3
%4</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>yok</translation>
    </message>
    <message>
        <source>%1, %2 B
%3</source>
        <translation>%1, %2 B
%3</translation>
    </message>
    <message>
        <source>Packet data</source>
        <translation>Paket veri</translation>
    </message>
    <message>
        <source>Access point name</source>
        <translation>Erişim noktası adı</translation>
    </message>
    <message>
        <source>1 to 101 characters</source>
        <translation>1 ile 101 karakter arası</translation>
    </message>
    <message>
        <source>Bytes sent each second</source>
        <translation>Her saniye gönderilen bayt</translation>
    </message>
    <message>
        <source>Bytes received each second</source>
        <translation>Her saniye alınan bayt</translation>
    </message>
    <message>
        <source>&amp;Start session</source>
        <translation>Oturumu &amp;başlat</translation>
    </message>
    <message>
        <source>Begins a session, which counts bytes and time</source>
        <translation>Bayt ve süre sayan bir oturum başlatır</translation>
    </message>
    <message>
        <source>Sto&amp;p session</source>
        <translation>Oturumu &amp;durdur</translation>
    </message>
    <message>
        <source>Ends the session</source>
        <translation>Oturumu bitirir</translation>
    </message>
    <message>
        <source>Why the session was not changed</source>
        <translation>Oturumun neden değiştirilmediği</translation>
    </message>
    <message>
        <source>All sessions</source>
        <translation>Tüm oturumlar</translation>
    </message>
    <message>
        <source>Bytes sent a second</source>
        <translation>Saniyede gönderilen bayt</translation>
    </message>
    <message>
        <source>Bytes received a second</source>
        <translation>Saniyede alınan bayt</translation>
    </message>
    <message>
        <source>Session %1</source>
        <translation>Oturum %1</translation>
    </message>
    <message>
        <source>Session %1:</source>
        <translation>Oturum %1:</translation>
    </message>
    <message>
        <source>All sessions:</source>
        <translation>Tüm oturumlar:</translation>
    </message>
    <message>
        <source>S&amp;end update</source>
        <translation>&amp;Güncelleme gönder</translation>
    </message>
    <message>
        <source>Tells the screens that the figures have changed</source>
        <translation>Ekranlara değerlerin değiştiğini bildirir</translation>
    </message>
</context>
<context>
    <name>host::Panel</name>
    <message>
        <source>Sides of the telephone</source>
        <translation>Telefonun yönleri</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>Aramalar</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Ücret</translation>
    </message>
    <message>
        <source>SIM</source>
        <translation>SIM</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Veri</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>Arızalar</translation>
    </message>
</context>
<context>
    <name>host::PhoneWindow</name>
    <message>
        <source>Recent Calls</source>
        <translation>Son aramalar</translation>
    </message>
</context>
<context>
    <name>host::Pin2Section</name>
    <message>
        <source>Blocked for good.</source>
        <translation>Temelli kilitli.</translation>
    </message>
    <message>
        <source>Blocked: only PUK2 helps.</source>
        <translation>Kilitli: yalnızca PUK2 açar.</translation>
    </message>
    <message>
        <source>Off: nobody is asked for it.</source>
        <translation>Kapalı: kimseye sorulmaz.</translation>
    </message>
    <message>
        <source>On, and entered.</source>
        <translation>Açık ve girildi.</translation>
    </message>
    <message>
        <source>On, not entered.</source>
        <translation>Açık, girilmedi.</translation>
    </message>
    <message>
        <source>Tries left: PIN2 %1, PUK2 %2.</source>
        <translation>Kalan deneme: PIN2 %1, PUK2 %2.</translation>
    </message>
    <message>
        <source>PIN2</source>
        <translation>PIN2</translation>
    </message>
    <message>
        <source>State of PIN2</source>
        <translation>PIN2'nin durumu</translation>
    </message>
    <message>
        <source>PIN2 is on</source>
        <translation>PIN2 açık</translation>
    </message>
    <message>
        <source>Four to eight digits</source>
        <translation>Dört ile sekiz rakam arası</translation>
    </message>
    <message>
        <source>PUK2</source>
        <translation>PUK2</translation>
    </message>
    <message>
        <source>Eight digits</source>
        <translation>Sekiz rakam</translation>
    </message>
    <message>
        <source>New PIN2</source>
        <translation>Yeni PIN2</translation>
    </message>
    <message>
        <source>What came of it</source>
        <translation>Sonuç</translation>
    </message>
    <message>
        <source>The phone asks for it where a file is written with PIN2</source>
        <translation>Bir dosya PIN2 ile yazılacağında telefon onu sorar</translation>
    </message>
    <message>
        <source>&amp;Switch off and on</source>
        <translation>Kapatıp &amp;aç</translation>
    </message>
    <message>
        <source>Forgets that PIN2 has been entered</source>
        <translation>PIN2'nin girildiğini unutur</translation>
    </message>
    <message>
        <source>&amp;Enter</source>
        <translation>&amp;Gir</translation>
    </message>
    <message>
        <source>Presents PIN2 to the card, as the phone does; a wrong one costs a try</source>
        <translation>PIN2'yi telefon gibi karta sunar; yanlışı bir denemeye mal olur</translation>
    </message>
    <message>
        <source>Un&amp;block</source>
        <translation>Kilidi &amp;kaldır</translation>
    </message>
    <message>
        <source>Sets the new PIN2 and gives all tries back</source>
        <translation>Yeni PIN2'yi ayarlar ve tüm denemeleri geri verir</translation>
    </message>
    <message>
        <source>PIN2 has been entered.</source>
        <translation>PIN2 girildi.</translation>
    </message>
    <message>
        <source>Wrong PIN2.</source>
        <translation>Yanlış PIN2.</translation>
    </message>
    <message>
        <source>The new PIN2 counts.</source>
        <translation>Yeni PIN2 geçerli.</translation>
    </message>
    <message>
        <source>Wrong PUK2.</source>
        <translation>Yanlış PUK2.</translation>
    </message>
</context>
<context>
    <name>host::RecentCallsSection</name>
    <message>
        <source>Recent calls</source>
        <translation>Son aramalar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Sil</translation>
    </message>
    <message>
        <source>Deletes the chosen call; the totals stay</source>
        <translation>Seçilen aramayı siler; toplamlar kalır</translation>
    </message>
    <message>
        <source>Delete a&amp;ll ...</source>
        <translation>&amp;Tümünü sil ...</translation>
    </message>
    <message>
        <source>Deletes every call that is over; the totals stay</source>
        <translation>Biten tüm aramaları siler; toplamlar kalır</translation>
    </message>
    <message>
        <source>Why the calls were not read or deleted</source>
        <translation>Aramaların neden okunmadığı ya da silinmediği</translation>
    </message>
    <message>
        <source>The call log cannot be read.</source>
        <translation>Arama kaydı okunamıyor.</translation>
    </message>
    <message>
        <source>Delete all calls that are over? The totals stay as they are.</source>
        <translation>Biten tüm aramalar silinsin mi? Toplamlar olduğu gibi kalır.</translation>
    </message>
    <message>
        <source>&amp;Delete all</source>
        <translation>&amp;Tümünü sil</translation>
    </message>
</context>
<context>
    <name>host::SimFilesSection</name>
    <message>
        <source>%1  =  %2 units</source>
        <translation>%1  =  %2 birim</translation>
    </message>
    <message>
        <source>  (newest)</source>
        <translation>  (en yenisi)</translation>
    </message>
    <message>
        <source>%1  =  no limit</source>
        <translation>%1  =  sınır yok</translation>
    </message>
    <message>
        <source>no currency</source>
        <translation>para birimi yok</translation>
    </message>
    <message>
        <source>%1  =  %2, %3 a unit</source>
        <translation>%1  =  %2, birimi %3</translation>
    </message>
    <message>
        <source>call meter</source>
        <translation>arama sayacı</translation>
    </message>
    <message>
        <source>maximum</source>
        <translation>en çok</translation>
    </message>
    <message>
        <source>price</source>
        <translation>fiyat</translation>
    </message>
    <message>
        <source>freely</source>
        <translation>serbest</translation>
    </message>
    <message>
        <source>with PIN2</source>
        <translation>PIN2 ile</translation>
    </message>
    <message>
        <source>never</source>
        <translation>asla</translation>
    </message>
    <message>
        <source>Files of the SIM card</source>
        <translation>SIM kartın dosyaları</translation>
    </message>
    <message>
        <source>Why the SIM card was not changed</source>
        <translation>SIM kartın neden değiştirilmediği</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>yazma: %1</translation>
    </message>
    <message>
        <source>Who may write %1</source>
        <translation>Yazabilen: %1</translation>
    </message>
</context>
<context>
    <name>host::StateSection</name>
    <message>
        <source>State</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>In memory; gone when the window closes.</source>
        <translation>Bellekte; pencere kapanınca kaybolur.</translation>
    </message>
    <message>
        <source>Kept in %1</source>
        <translation>Saklandığı yer: %1</translation>
    </message>
    <message>
        <source>Where the state is kept</source>
        <translation>Durumun saklandığı yer</translation>
    </message>
    <message>
        <source>New telephone ...</source>
        <translation>Yeni telefon ...</translation>
    </message>
    <message>
        <source>Begins with a new telephone, after a question</source>
        <translation>Bir sorudan sonra yeni bir telefonla başlar</translation>
    </message>
    <message>
        <source>What there is now is kept in a file beside it.</source>
        <translation>Şu anda olanlar yanındaki bir dosyada saklanır.</translation>
    </message>
    <message>
        <source>What there is now is lost.</source>
        <translation>Şu anda olanlar kaybolur.</translation>
    </message>
    <message>
        <source>Begin with a new telephone? Calls, figures, settings and the simulated SIM card begin anew; a call that is on ends.</source>
        <translation>Yeni bir telefonla başlansın mı? Aramalar, sayaçlar, ayarlar ve benzetimli SIM kart baştan başlar; süren bir arama sona erer.</translation>
    </message>
    <message>
        <source>New telephone</source>
        <translation>Yeni telefon</translation>
    </message>
    <message>
        <source>Begin anew</source>
        <translation>Baştan başla</translation>
    </message>
</context>
<context>
    <name>host::StatusText</name>
    <message>
        <source>the number is not one that can be dialed</source>
        <translation>bu numara aranamaz</translation>
    </message>
    <message>
        <source>the line is in another state</source>
        <translation>hat başka bir durumda</translation>
    </message>
    <message>
        <source>not allowed now: nothing more may be charged</source>
        <translation>şimdi izin yok: artık hiçbir şey ücretlendirilemez</translation>
    </message>
    <message>
        <source>an amount of at least one unit, and not more than the account holds</source>
        <translation>en az bir birimlik ve hesabın alabileceğinden çok olmayan bir tutar</translation>
    </message>
    <message>
        <source>not possible now</source>
        <translation>şimdi olanaksız</translation>
    </message>
    <message>
        <source>not allowed</source>
        <translation>izin yok</translation>
    </message>
    <message>
        <source>no price, or a currency of more than three characters</source>
        <translation>fiyat yok ya da para birimi üç karakterden uzun</translation>
    </message>
    <message>
        <source>the SIM card refuses</source>
        <translation>SIM kart kabul etmiyor</translation>
    </message>
    <message>
        <source>an access point name has 1 to 101 Latin-1 characters</source>
        <translation>bir erişim noktası adı 1 ile 101 Latin-1 karakterdir</translation>
    </message>
    <message>
        <source>a session is running, or none is</source>
        <translation>bir oturum sürüyor ya da hiçbiri sürmüyor</translation>
    </message>
    <message>
        <source>PUK2 has eight digits, a PIN2 four to eight</source>
        <translation>PUK2 sekiz, PIN2 dört ile sekiz rakamdır</translation>
    </message>
    <message>
        <source>PUK2 is blocked, too</source>
        <translation>PUK2 de kilitli</translation>
    </message>
    <message>
        <source>a PIN2 has four to eight digits</source>
        <translation>PIN2 dört ile sekiz rakamdır</translation>
    </message>
    <message>
        <source>PIN2 is blocked</source>
        <translation>PIN2 kilitli</translation>
    </message>
    <message>
        <source>the call is not kept any more</source>
        <translation>arama artık saklanmıyor</translation>
    </message>
    <message>
        <source>the call is still running</source>
        <translation>arama hâlâ sürüyor</translation>
    </message>
    <message>
        <source>there is no such rule</source>
        <translation>böyle bir kural yok</translation>
    </message>
    <message>
        <source>the network knows no such tariff</source>
        <translation>şebeke böyle bir tarife tanımıyor</translation>
    </message>
    <message>
        <source>the telephone cannot do this</source>
        <translation>telefon bunu yapamaz</translation>
    </message>
    <message>
        <source>the call log cannot be written</source>
        <translation>arama kaydına yazılamıyor</translation>
    </message>
    <message>
        <source>another process records the calls</source>
        <translation>aramaları başka bir süreç kaydediyor</translation>
    </message>
    <message>
        <source>Not done: %1.</source>
        <translation>Yapılmadı: %1.</translation>
    </message>
    <message>
        <source>Not done: the telephone answers %1.</source>
        <translation>Yapılmadı: telefonun yanıtı %1.</translation>
    </message>
    <message>
        <source>a value is out of range</source>
        <translation>bir değer sınırların dışında</translation>
    </message>
    <message>
        <source>it is not possible now</source>
        <translation>şimdi olanaksız</translation>
    </message>
    <message>
        <source>the SIM or the network does not allow it</source>
        <translation>SIM ya da şebeke izin vermiyor</translation>
    </message>
</context>
<context>
    <name>host::TariffSection</name>
    <message>
        <source>Free</source>
        <translation>Ücretsiz</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Birim</translation>
    </message>
    <message>
        <source>for each</source>
        <translation>her</translation>
    </message>
    <message>
        <source>at the start</source>
        <translation>başlangıçta</translation>
    </message>
    <message>
        <source>Dialed calls</source>
        <translation>Yapılan</translation>
    </message>
    <message>
        <source>Answered calls</source>
        <translation>Yanıtlanan</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Tariff</source>
        <translation>Tarife</translation>
    </message>
    <message>
        <source>Why the tariff was not set</source>
        <translation>Tarifenin neden ayarlanmadığı</translation>
    </message>
    <message>
        <source>%1 are free</source>
        <translation>%1 ücretsiz</translation>
    </message>
    <message>
        <source>Nothing is charged for them</source>
        <translation>Bunlar için ücret alınmaz</translation>
    </message>
    <message>
        <source>Units for each interval</source>
        <translation>Her aralık için birim</translation>
    </message>
    <message>
        <source>Interval in seconds</source>
        <translation>Saniye olarak aralık</translation>
    </message>
    <message>
        <source> s</source>
        <translation> sn</translation>
    </message>
    <message>
        <source>Units when the call is connected</source>
        <translation>Arama bağlandığında birim</translation>
    </message>
</context>
<context>
    <name>host::WaitNotice</name>
    <message>
        <source>Please wait ...</source>
        <translation>Lütfen bekleyin ...</translation>
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
Çıkış kodları:
  0  bir sinyal programı sonlandırdı ve süren her şey yazıldı
  2  komut satırı yanlış
  3  sistem veri yolu yok ya da telefon açılamıyor
</translation>
    </message>
    <message>
        <source>See kavcallrecorder --help.</source>
        <translation>Bkz. kavcallrecorder --help.</translation>
    </message>
    <message>
        <source>Records the calls and data connections of a modem while no window is open.</source>
        <translation>Hiçbir pencere açık değilken bir modemin aramalarını ve veri bağlantılarını kaydeder.</translation>
    </message>
    <message>
        <source>The telephone: %1, the path of a library that has one, or auto: the first over which a modem is there, now or later. Default: auto.</source>
        <translation>Telefon: %1, telefon içeren bir kitaplığın yolu ya da auto: şimdi veya sonra üzerinden modeme ulaşılan ilk telefon. Varsayılan: auto.</translation>
    </message>
    <message>
        <source>Record in DIR. Default: %1</source>
        <translation>DIR dizinine kaydet. Varsayılan: %1</translation>
    </message>
    <message>
        <source>Keep the calls of the last DAYS days, 0 to 100000; older ones are deleted when recording begins and once a day, and stay in the totals. Default: all are kept.</source>
        <translation>Son DAYS günün aramalarını sakla, 0 ile 100000 arası; daha eskiler kayıt başlarken ve günde bir kez silinir, toplamlarda kalır. Varsayılan: hepsi saklanır.</translation>
    </message>
    <message>
        <source>%1; it is looked for.</source>
        <translation>%1; aranıyor.</translation>
    </message>
    <message>
        <source>Option 'keep-calls' wants a number of days, 0 to %1.</source>
        <translation>“keep-calls” seçeneği 0 ile %1 arasında bir gün sayısı ister.</translation>
    </message>
    <message>
        <source>There is a value missing or too many.</source>
        <translation>Bir değer eksik ya da fazla.</translation>
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
        <translation>Telefonun sayaçlarını gösterir: aramaların süresi ve ücreti, paket verinin süresi ve baytları.

Komutlar:
  figures [NAME ...]   tüm değerler ya da yalnızca bunlar; varsayılan
  settings             ücret bildirimi: ücretlerin nasıl sayıldığı, kredi sınırı, fiyat
  calls                saklanan aramalar
  sessions             saklanan veri oturumları
  totals               saklananlar, aya göre ya da --by ve --cycle-day ile
  reset NAME           sıfırlar: %1
  delete ID|all        bir aramayı ya da bitenlerin hepsini siler; toplamlar kalır
  export FILE          tüm durumu JSON olarak yazar; “-” standart çıktıdır
  import FILE          böyle bir dosyadan yeni bir durum oluşturur

Değerler: %2.</translation>
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
Çıkış kodları:
  0  her şey yolunda
  1  telefon reddediyor ya da arama kaydı okunamıyor veya yazılamıyor
  2  komut satırı yanlış ya da --yes olmadan değişiklik istendi
  3  durum yok ya da telefon açılamıyor
  4  adı verilen bir değer kullanılamıyor
  5  kredi sınırına ulaşıldı ya da kredi bitti
  6  --alert değerine ulaşıldı
  7  bir dosya ya da çıktı okunamıyor veya yazılamıyor ya da hatalı
</translation>
    </message>
    <message>
        <source>The telephone's state is in DIR. Default: %1</source>
        <translation>Telefonun durumu DIR dizinindedir. Varsayılan: %1</translation>
    </message>
    <message>
        <source>The telephone: %1, or the path of a library that has one. Default: simulated.</source>
        <translation>Telefon: %1 ya da telefon içeren bir kitaplığın yolu. Varsayılan: simulated.</translation>
    </message>
    <message>
        <source>Speak this language: %1. Default: the locale's. JSON and CSV are the same in each.</source>
        <translation>Bu dili konuş: %1. Varsayılan: yerel ayarın dili. JSON ve CSV hepsinde aynıdır.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>JSON yazdır.</translation>
    </message>
    <message>
        <source>Print comma-separated values.</source>
        <translation>Virgülle ayrılmış değerler yazdır.</translation>
    </message>
    <message>
        <source>Reset or delete indeed; nothing is asked.</source>
        <translation>Gerçekten sıfırla ya da sil; soru sorulmaz.</translation>
    </message>
    <message>
        <source>Print anew whenever something changes, until a signal comes.</source>
        <translation>Sinyal gelene kadar her değişiklikte yeniden yazdır.</translation>
    </message>
    <message>
        <source>Totals by day, month or cycle.</source>
        <translation>Güne, aya veya döneme göre toplamlar (day, month, cycle).</translation>
    </message>
    <message>
        <source>The billing cycle begins on day N, 1 to 28; totals by cycle.</source>
        <translation>Fatura dönemi N. günde başlar, 1 ile 28 arası; döneme göre toplamlar.</translation>
    </message>
    <message>
        <source>With delete all: keep the calls of the last DAYS days.</source>
        <translation>delete all ile: son DAYS günün aramalarını sakla.</translation>
    </message>
    <message>
        <source>COST N, TIME N or BYTES N: exit code 6 where all calls have cost N or more, lasted N seconds or more, or N bytes or more have gone both ways.</source>
        <translation>COST N, TIME N veya BYTES N: tüm aramalar N veya daha fazla tuttuysa, N saniye veya daha uzun sürdüyse ya da iki yönde N bayt veya daha fazlası geçtiyse çıkış kodu 6.</translation>
    </message>
    <message>
        <source>What to do.</source>
        <translation>Ne yapılacağı.</translation>
    </message>
    <message>
        <source>Option 'alert' wants COST, TIME or BYTES, and a number.</source>
        <translation>“alert” seçeneği COST, TIME veya BYTES ile bir sayı ister.</translation>
    </message>
    <message>
        <source>Option 'by' wants day, month or cycle.</source>
        <translation>“by” seçeneği day, month veya cycle ister.</translation>
    </message>
    <message>
        <source>Option 'cycle-day' wants a day from 1 to 28.</source>
        <translation>“cycle-day” seçeneği 1 ile 28 arasında bir gün ister.</translation>
    </message>
    <message>
        <source>Option 'cycle-day' goes with --by cycle.</source>
        <translation>“cycle-day” seçeneği --by cycle ile kullanılır.</translation>
    </message>
    <message>
        <source>Option 'keep-calls' wants a number of days.</source>
        <translation>“keep-calls” seçeneği bir gün sayısı ister.</translation>
    </message>
    <message>
        <source>Option 'keep-calls' goes with delete all.</source>
        <translation>“keep-calls” seçeneği delete all ile kullanılır.</translation>
    </message>
    <message>
        <source>There is no command '%1'.</source>
        <translation>“%1” komutu yok.</translation>
    </message>
    <message>
        <source>The command '%1' has a word missing or too many.</source>
        <translation>“%1” komutunda bir sözcük eksik ya da fazla.</translation>
    </message>
    <message>
        <source>There is no '%1' to show or to reset.</source>
        <translation>Gösterilecek ya da sıfırlanacak “%1” yok.</translation>
    </message>
    <message>
        <source>Options 'watch' and 'alert' go with figures.</source>
        <translation>“watch” ve “alert” seçenekleri figures ile kullanılır.</translation>
    </message>
    <message>
        <source>Nothing was changed: '%1' wants --yes.</source>
        <translation>Hiçbir şey değiştirilmedi: “%1” --yes ister.</translation>
    </message>
    <message>
        <source>Options 'state' and 'backend' want a value.</source>
        <translation>“state” ve “backend” seçenekleri bir değer ister.</translation>
    </message>
    <message>
        <source>Unknown language '%1'; there is: %2.</source>
        <translation>Bilinmeyen dil “%1”; olanlar: %2.</translation>
    </message>
    <message>
        <source>Options 'json' and 'csv' do not go together.</source>
        <translation>“json” ve “csv” seçenekleri birlikte kullanılamaz.</translation>
    </message>
    <message>
        <source>units</source>
        <translation>birim</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>bayt</translation>
    </message>
    <message>
        <source>currency</source>
        <translation>para birimi</translation>
    </message>
    <message>
        <source>on</source>
        <translation>açık</translation>
    </message>
    <message>
        <source>off</source>
        <translation>kapalı</translation>
    </message>
    <message>
        <source>The output cannot be written.</source>
        <translation>Çıktı yazılamıyor.</translation>
    </message>
    <message>
        <source>There is no state in "%1".</source>
        <translation>“%1” içinde durum yok.</translation>
    </message>
    <message>
        <source>The figure of the alert is not available.</source>
        <translation>Uyarının değeri kullanılamıyor.</translation>
    </message>
    <message>
        <source>The call log cannot be read.</source>
        <translation>Arama kaydı okunamıyor.</translation>
    </message>
    <message>
        <source>Nothing was changed: %1 %2: %3.</source>
        <translation>Hiçbir şey değiştirilmedi: %1 %2: %3.</translation>
    </message>
    <message>
        <source>delete wants the id of a call, or all.</source>
        <translation>delete bir aramanın kimliğini ya da all ister.</translation>
    </message>
    <message>
        <source>See kavmeter --help.</source>
        <translation>Bkz. kavmeter --help.</translation>
    </message>
    <message>
        <source>running</source>
        <translation>sürüyor</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>bitti</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>bağlanmadı</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>kesildi</translation>
    </message>
    <message>
        <source>data</source>
        <translation>veri</translation>
    </message>
    <message>
        <source>voice</source>
        <translation>ses</translation>
    </message>
    <message>
        <source>dialed</source>
        <translation>aranan</translation>
    </message>
    <message>
        <source>answered</source>
        <translation>yanıtlanan</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>kullanılamıyor</translation>
    </message>
    <message>
        <source>is no whole number</source>
        <translation>tam sayı değil</translation>
    </message>
    <message>
        <source>is no text</source>
        <translation>metin değil</translation>
    </message>
    <message>
        <source>has no pairs of hexadecimal digits</source>
        <translation>onaltılık rakam çiftlerinden oluşmuyor</translation>
    </message>
    <message>
        <source>%1.%2 is missing</source>
        <translation>%1.%2 eksik</translation>
    </message>
    <message>
        <source>%1.%2 is not known</source>
        <translation>%1.%2 bilinmiyor</translation>
    </message>
    <message>
        <source>kept[%1].content cannot be read</source>
        <translation>kept[%1].content okunamıyor</translation>
    </message>
    <message>
        <source>format is not "%1"</source>
        <translation>format “%1” değil</translation>
    </message>
    <message>
        <source>version is not %1</source>
        <translation>version %1 değil</translation>
    </message>
    <message>
        <source>%1 is no list</source>
        <translation>%1 liste değil</translation>
    </message>
    <message>
        <source>%1 is no row</source>
        <translation>%1 satır değil</translation>
    </message>
    <message>
        <source>%1[%2] is not possible</source>
        <translation>%1[%2] olanaksız</translation>
    </message>
    <message>
        <source>its totals contradict its rows</source>
        <translation>toplamları satırlarıyla çelişiyor</translation>
    </message>
    <message>
        <source>"%1" cannot be made: %2.</source>
        <translation>“%1” oluşturulamıyor: %2.</translation>
    </message>
    <message>
        <source>"%1" cannot be written: %2.</source>
        <translation>“%1” yazılamıyor: %2.</translation>
    </message>
    <message>
        <source>"%1" cannot be read: %2.</source>
        <translation>“%1” okunamıyor: %2.</translation>
    </message>
    <message>
        <source>"%1", line %2: %3.</source>
        <translation>“%1”, satır %2: %3.</translation>
    </message>
    <message>
        <source>"%1" is not empty: a state is imported into a new directory.</source>
        <translation>“%1” boş değil: durum yeni bir dizine aktarılır.</translation>
    </message>
</context>
<context>
    <name>kavrecentcalls</name>
    <message>
        <source>Option '%1' of Qt does not go with option 'tour'.</source>
        <translation>Qt'nin “%1” seçeneği “tour” seçeneğiyle kullanılamaz.</translation>
    </message>
    <message>
        <source>See kavrecentcalls --help.</source>
        <translation>Bkz. kavrecentcalls --help.</translation>
    </message>
    <message>
        <source>There is no display to show the phone on; --tour DIR needs none.</source>
        <translation>Telefonu gösterecek ekran yok; --tour DIR ekran gerektirmez.</translation>
    </message>
    <message>
        <source>The display "%1" cannot be reached; --tour DIR needs none.</source>
        <translation>“%1” ekranına ulaşılamıyor; --tour DIR ekran gerektirmez.</translation>
    </message>
    <message>
        <source>The trace file "%1" cannot be opened: %2.</source>
        <translation>“%1” izleme dosyası açılamıyor: %2.</translation>
    </message>
    <message>
        <source>The script "%1" cannot be read: %2.</source>
        <translation>“%1” betiği okunamıyor: %2.</translation>
    </message>
    <message>
        <source>The photograph "%1" cannot be written.</source>
        <translation>“%1” fotoğrafı yazılamıyor.</translation>
    </message>
    <message>
        <source>The plug-in gives no screen "%1".</source>
        <translation>Eklenti “%1” ekranını vermiyor.</translation>
    </message>
    <message>
        <source>A new telephone has begun.</source>
        <translation>Yeni bir telefon başladı.</translation>
    </message>
    <message>
        <source>There is no new telephone, but the one before: %1.</source>
        <translation>Yeni telefon yok, önceki sürüyor: %1.</translation>
    </message>
    <message>
        <source>A new telephone has begun. The one before is kept as "%1".</source>
        <translation>Yeni bir telefon başladı. Öncekisi "%1" adıyla saklandı.</translation>
    </message>
    <message>
        <source>Shows the call meters of the phone: a phone with its display and keypad in a window, and beside it a panel
that makes calls on the simulated telephone.</source>
        <translation>Telefonun arama sayaçlarını gösterir: bir pencerede ekranı ve tuş takımıyla bir telefon, yanında da benzetimli
telefonda arama yapan bir panel.</translation>
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
Çıkış kodları:
  0  her şey yolunda
  1  bir tur, betiğinin beklediğinden başka bir şey gördü
  2  komut satırı yanlış
  3  telefon açılamıyor
  4  izleme dosyası açılamıyor
  5  eklenti, başka bir kitaplık ya da bir işlevi eksik, ya da eklenti ekran vermiyor
  6  turun betiği okunamıyor ya da hatalı
  7  bir fotoğraf, bir turun metni ya da istenen şey yazılamıyor
  8  çeviri kataloğu yüklenemiyor
  9  pencereyi gösterecek ekran ya da böyle bir Qt platformu yok
 10  bir sinyal turu bitmeden sonlandırdı
</translation>
    </message>
    <message>
        <source>Keep the telephone's state in DIR between starts; "none" keeps it in memory. Default: %1</source>
        <translation>Telefonun durumunu başlatmalar arasında DIR dizininde sakla; “none” onu bellekte tutar. Varsayılan: %1</translation>
    </message>
    <message>
        <source>Append the traces to FILE; "-" is standard output. Default: trace.log in the state directory; no trace where the state is in memory, and on a tour.</source>
        <translation>İzleri FILE sonuna ekle; “-” standart çıktıdır. Varsayılan: durum dizinindeki trace.log; durum bellekteyken ve turda iz yoktur.</translation>
    </message>
    <message>
        <source>The telephone behind: %2, the path of a library that has one, or auto: the first that has a modem, else simulated. Default: simulated.</source>
        <translation>Arkadaki telefon: %2, telefon içeren bir kitaplığın yolu ya da auto: modemi olan ilk telefon, yoksa simulated. Varsayılan: simulated.</translation>
    </message>
    <message>
        <source>Keep the calls of the last DAYS days, 0 to 100000; older ones are deleted at the start and once a day, and stay in the totals. Default: all are kept.</source>
        <translation>Son DAYS günün aramalarını sakla, 0 ile 100000 arası; daha eskiler başlangıçta ve günde bir kez silinir, toplamlarda kalır. Varsayılan: hepsi saklanır.</translation>
    </message>
    <message>
        <source>The plug-in library. Default: libkavcallmeter.so.1</source>
        <translation>Eklenti kitaplığı. Varsayılan: libkavcallmeter.so.1</translation>
    </message>
    <message>
        <source>Open this screen at once: %3.</source>
        <translation>Hemen bu ekranı aç: %3.</translation>
    </message>
    <message>
        <source>Show this page of the panel: %4.</source>
        <translation>Panelin bu sayfasını göster: %4.</translation>
    </message>
    <message>
        <source>Show the phone's display alone, as large as the window and worked by touch: for a window that is a phone's.</source>
        <translation>Yalnızca telefonun ekranını göster, pencere kadar büyük ve dokunarak kullanılır: bir telefonun penceresi için.</translation>
    </message>
    <message>
        <source>Load the texts of the catalogue FILE (.qm).</source>
        <translation>FILE kataloğunun (.qm) metinlerini yükle.</translation>
    </message>
    <message>
        <source>Speak this language: %5. Default: the locale's; English on a tour and with --photo.</source>
        <translation>Bu dili konuş: %5. Varsayılan: yerel ayarın dili; turda ve --photo ile İngilizce.</translation>
    </message>
    <message>
        <source>The colours: light or dark. Default: the desktop's; light on a tour and with --photo.</source>
        <translation>Renkler: light (açık) ya da dark (koyu). Varsayılan: masaüstününkiler; turda ve --photo ile light.</translation>
    </message>
    <message>
        <source>Photograph the window as PNG to FILE and end.</source>
        <translation>Pencereyi PNG olarak FILE dosyasına fotoğrafla ve bitir.</translation>
    </message>
    <message>
        <source>Play a tour without a display: put photographs of the screens into DIR and print their texts.</source>
        <translation>Ekransız bir tur yap: ekranların fotoğraflarını DIR dizinine koy ve metinlerini yazdır.</translation>
    </message>
    <message>
        <source>Play this script instead of the tour of all screens; only with --tour.</source>
        <translation>Tüm ekranların turu yerine bu betiği oynat; yalnızca --tour ile.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Bu yardımı gösterir.</translation>
    </message>
    <message>
        <source>Option '%1' has an empty value.</source>
        <translation>“%1” seçeneğinin değeri boş.</translation>
    </message>
    <message>
        <source>The name that option '%1' gives is not UTF-8.</source>
        <translation>“%1” seçeneğinin verdiği ad UTF-8 değil.</translation>
    </message>
    <message>
        <source>Unknown screen '%1'; there is: %2.</source>
        <translation>Bilinmeyen ekran “%1”; olanlar: %2.</translation>
    </message>
    <message>
        <source>Unknown page '%1'; there is: %2.</source>
        <translation>Bilinmeyen sayfa “%1”; olanlar: %2.</translation>
    </message>
    <message>
        <source>Unknown language '%1'; there is: %2.</source>
        <translation>Bilinmeyen dil “%1”; olanlar: %2.</translation>
    </message>
    <message>
        <source>Unknown skin '%1'; there is: %2.</source>
        <translation>Bilinmeyen tema “%1”; olanlar: %2.</translation>
    </message>
    <message>
        <source>Unexpected argument '%1'.</source>
        <translation>Beklenmeyen bağımsız değişken “%1”.</translation>
    </message>
    <message>
        <source>Option 'script' needs option 'tour'.</source>
        <translation>“script” seçeneği “tour” seçeneğini gerektirir.</translation>
    </message>
    <message>
        <source>Option 'keep-calls' wants a number of days, 0 to %1.</source>
        <translation>“keep-calls” seçeneği 0 ile %1 arasında bir gün sayısı ister.</translation>
    </message>
    <message>
        <source>Option '%1' does not go with option 'tour'.</source>
        <translation>“%1” seçeneği “tour” seçeneğiyle kullanılamaz.</translation>
    </message>
    <message>
        <source>Option 'page' does not go with option 'display'.</source>
        <translation>'page' seçeneği 'display' seçeneğiyle birlikte kullanılamaz.</translation>
    </message>
    <message>
        <source>Option 'language' does not go with option 'translation'.</source>
        <translation>“language” seçeneği “translation” seçeneğiyle kullanılamaz.</translation>
    </message>
</context>
</TS>
