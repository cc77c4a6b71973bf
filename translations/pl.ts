<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>PHONE_UI_RecentCallCostSetupView</name>
    <message>
        <source>TXT_RID_SETTING_A_CREDIT_LIMIT</source>
        <comment>Credit Limit</comment>
        <translation>Limit kredytu</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CURRENCY_TYPE</source>
        <comment>Currency Type</comment>
        <translation>Rodzaj waluty</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>All costs have been reset to 0.00 units.</comment>
        <translation>Wszystkie koszty wyzerowano do 0.00 jednostek.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ALL_CALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>All call costs have been reset to 0.00 units.</comment>
        <translation>Koszty wszystkich połączeń wyzerowano do 0.00 jednostek.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_DIALED_CALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>Dialed call costs have been reset to 0.00 units.</comment>
        <translation>Koszty połączeń wybieranych wyzerowano do 0.00 jednostek.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ANSWERED_CALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>Answered call costs have been reset to 0.00 units.</comment>
        <translation>Koszty połączeń odebranych wyzerowano do 0.00 jednostek.</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_B_ON</source>
        <comment>On</comment>
        <translation>Wł.</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_B_OFF</source>
        <comment>Off</comment>
        <translation>Wył.</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ON</source>
        <comment>On</comment>
        <translation>Wł.</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_OFF</source>
        <comment>Off</comment>
        <translation>Wył.</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CUSTOM</source>
        <comment>Custom</comment>
        <translation>Inna</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_SAVE</source>
        <comment>Save</comment>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_RESET_CALLS</source>
        <comment>Reset Calls</comment>
        <translation>Zerowanie</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CURRENCY</source>
        <comment>Currency</comment>
        <translation>Waluta</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CHOOSE_TYPE</source>
        <comment>Choose Type</comment>
        <translation>Wybierz walutę</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CURRENCY_TYPE</source>
        <comment>Currency Type</comment>
        <translation>Waluta</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_COST_PER_MINUTE</source>
        <comment>Cost Per Minute</comment>
        <translation>Cena za minutę</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ADJUST_CREDIT_LIMIT</source>
        <comment>Adjust Credit Limit</comment>
        <translation>Ustaw limit</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_COST_SETUP</source>
        <comment>Call-Cost Setup</comment>
        <translation>Ustawienia kosztów</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UNITED_ARAB_EMIRATES_DIRHAM_AED</source>
        <comment>UNITED ARAB EMIRATES  DIRHAM  (AED)</comment>
        <translation>Zjednoczone Emiraty Arabskie: dirham (AED)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AFGHANISTAN_AFGHANI_AFA</source>
        <comment>AFGHANISTAN  AFGHANI  (AFA)</comment>
        <translation>Afganistan: afgani (AFA)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ALBANIA_LEK_ALL</source>
        <comment>ALBANIA  LEK  (ALL)</comment>
        <translation>Albania: lek (ALL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ARMENIA_DRAM_AMD</source>
        <comment>ARMENIA  DRAM  (AMD)</comment>
        <translation>Armenia: dram (AMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NETHERLANDS_ANTILLES_GUILDER_ANG</source>
        <comment>NETHERLANDS ANTILLES  GUILDER  (ANG)</comment>
        <translation>Antyle Holenderskie: gulden (ANG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ANGOLA_NEW_KWANZA_AON</source>
        <comment>ANGOLA  NEW KWANZA  (AON)</comment>
        <translation>Angola: nowa kwanza (AON)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ARGENTINA_PESO_ARS</source>
        <comment>ARGENTINA  PESO  (ARS)</comment>
        <translation>Argentyna: peso (ARS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AUSTRIA_SCHILLING_ATS</source>
        <comment>AUSTRIA  SCHILLING  (ATS)</comment>
        <translation>Austria: szyling (ATS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AUSTRALIA_KIRIBATI_DOLLAR_AUD</source>
        <comment>AUSTRALIA KIRIBATI  DOLLAR  (AUD)</comment>
        <translation>Australia, Kiribati: dolar (AUD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ARUBA_FLORIN_AWG</source>
        <comment>ARUBA  FLORIN  (AWG)</comment>
        <translation>Aruba: florin (AWG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AZERBAIJAN_MANAT_AZM</source>
        <comment>AZERBAIJAN  MANAT  (AZM)</comment>
        <translation>Azerbejdżan: manat (AZM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BARBADOS_DOLLAR_BBD</source>
        <comment>BARBADOS  DOLLAR  (BBD)</comment>
        <translation>Barbados: dolar (BBD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BANGLADESH_TAKA_BDT</source>
        <comment>BANGLADESH  TAKA  (BDT)</comment>
        <translation>Bangladesz: taka (BDT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BELGIUM_FRANC_BEF</source>
        <comment>BELGIUM  FRANC  (BEF)</comment>
        <translation>Belgia: frank (BEF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BULGARIA_LEW_BGN</source>
        <comment>BULGARIA  LEW  (BGN)</comment>
        <translation>Bułgaria: lew (BGN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BAHRAIN_DINAR_BHD</source>
        <comment>BAHRAIN  DINAR  (BHD)</comment>
        <translation>Bahrajn: dinar (BHD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BURUNDI_FRANC_BIF</source>
        <comment>BURUNDI  FRANC  (BIF)</comment>
        <translation>Burundi: frank (BIF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BERMUDA_DOLLAR_BMD</source>
        <comment>BERMUDA  DOLLAR  (BMD)</comment>
        <translation>Bermudy: dolar (BMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BRUNEI_DOLLAR_BND</source>
        <comment>BRUNEI  DOLLAR  (BND)</comment>
        <translation>Brunei: dolar (BND)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BOLIVIA_BOLIVIANO_BOB</source>
        <comment>BOLIVIA  BOLIVIANO  (BOB)</comment>
        <translation>Boliwia: boliviano (BOB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BRAZIL_REAL_BRL</source>
        <comment>BRAZIL  REAL  (BRL)</comment>
        <translation>Brazylia: real (BRL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BAHAMAS_DOLLAR_BSD</source>
        <comment>BAHAMAS  DOLLAR  (BSD)</comment>
        <translation>Bahamy: dolar (BSD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BHUTAN_NGULTRUM_BTN</source>
        <comment>BHUTAN  NGULTRUM  (BTN)</comment>
        <translation>Bhutan: ngultrum (BTN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BOTSWANA_PULA_BWP</source>
        <comment>BOTSWANA  PULA  (BWP)</comment>
        <translation>Botswana: pula (BWP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BELORUS_ROUBLE_BYR</source>
        <comment>BELORUS  ROUBLE  (BYR)</comment>
        <translation>Białoruś: rubel (BYR)</translation>
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
        <translation>Szwajcaria, Liechtenstein: frank (CHF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CHILE_PESO_CLP</source>
        <comment>CHILE  PESO  (CLP)</comment>
        <translation>Chile: peso (CLP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CHINA_RENMINBI_YUAN_CNY</source>
        <comment>CHINA  RENMINBI ¥UAN  (CNY)</comment>
        <translation>Chiny: juan renminbi (CNY)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_COLUMBIA_PESO_COP</source>
        <comment>COLUMBIA  PESO  (COP)</comment>
        <translation>Kolumbia: peso (COP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_COSTA_RICA_COLON_CRC</source>
        <comment>COSTA RICA  COLÓN  (CRC)</comment>
        <translation>Kostaryka: colon (CRC)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CUBA_PESO_CUP</source>
        <comment>CUBA  PESO  (CUP)</comment>
        <translation>Kuba: peso (CUP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CAPE_VERDE_ESCUDO_CVE</source>
        <comment>CAPE VERDE  ESCUDO  (CVE)</comment>
        <translation>Republika Zielonego Przylądka: escudo (CVE)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CYPRUS_POUND_CYP</source>
        <comment>CYPRUS  POUND  (CYP)</comment>
        <translation>Cypr: funt (CYP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CZECH_REPUBLIC_KRONER_CZK</source>
        <comment>CZECH REPUBLIC  KRONER  (CZK)</comment>
        <translation>Czechy: korona (CZK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GERMANY_MARK_DEM</source>
        <comment>GERMANY  MARK  (DEM)</comment>
        <translation>Niemcy: marka (DEM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DJIBUTI_FRANC_DJF</source>
        <comment>DJIBUTI  FRANC  (DJF)</comment>
        <translation>Dżibuti: frank (DJF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DENMARK_KRONE_DKK</source>
        <comment>DENMARK  KRONE  (DKK)</comment>
        <translation>Dania: korona (DKK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DOMINICAN_REPUBLIC_PESO_DOP</source>
        <comment>DOMINICAN REPUBLIC  PESO  (DOP)</comment>
        <translation>Dominikana: peso (DOP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ALGERIA_DINAR_DZD</source>
        <comment>ALGERIA  DINAR  (DZD)</comment>
        <translation>Algieria: dinar (DZD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ECUADOR_SUCRE_ECS</source>
        <comment>ECUADOR  SUCRE  (ECS)</comment>
        <translation>Ekwador: sucre (ECS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ESTONIA_KROON_EEK</source>
        <comment>ESTONIA  KROON  (EEK)</comment>
        <translation>Estonia: korona (EEK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EGYPT_POUND_EGP</source>
        <comment>EGYPT  POUND  (EGP)</comment>
        <translation>Egipt: funt (EGP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SPAIN_ANDORRA_PESETA_ESP</source>
        <comment>SPAIN ANDORRA  PESETA  (ESP)</comment>
        <translation>Hiszpania, Andora: peseta (ESP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ETHIOPIA_BIRR_ETB</source>
        <comment>ETHIOPIA  BIRR  (ETB)</comment>
        <translation>Etiopia: birr (ETB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FINLAND_MARK_FIM</source>
        <comment>FINLAND  MARK  (FIM)</comment>
        <translation>Finlandia: marka (FIM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FIJI_DOLLAR_FJD</source>
        <comment>FIJI  DOLLAR  (FJD)</comment>
        <translation>Fidżi: dolar (FJD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FALKLAND_ISLES_POUND_FKP</source>
        <comment>FALKLAND ISLES  POUND  (FKP)</comment>
        <translation>Falklandy: funt (FKP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FRANCE_FRANC_FRF</source>
        <comment>FRANCE  FRANC  (FRF)</comment>
        <translation>Francja: frank (FRF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UNITED_KINGDOM_GREAT_BRITAIN_POUND_STERLING_GBP</source>
        <comment>UNITED KINGDOM (GREAT BRITAIN)  POUND STERLING  (GBP)</comment>
        <translation>Wielka Brytania: funt szterling (GBP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GEORGIA_COUPON_GEK</source>
        <comment>GEORGIA  COUPON  (GEK)</comment>
        <translation>Gruzja: kupon (GEK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GHANA_CEDI_GHC</source>
        <comment>GHANA  CEDI  (GHC)</comment>
        <translation>Ghana: cedi (GHC)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GIBRALTAR_POUND_GIP</source>
        <comment>GIBRALTAR  POUND  (GIP)</comment>
        <translation>Gibraltar: funt (GIP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GAMBIA_DALASI_GMD</source>
        <comment>GAMBIA  DALASI  (GMD)</comment>
        <translation>Gambia: dalasi (GMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUINEA_FRANC_GNF</source>
        <comment>GUINEA  FRANC  (GNF)</comment>
        <translation>Gwinea: frank (GNF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GREECE_DRACHMA_GRD</source>
        <comment>GREECE  DRACHMA  (GRD)</comment>
        <translation>Grecja: drachma (GRD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUATEMALA_QUETZAL_GTQ</source>
        <comment>GUATEMALA  QUETZAL  (GTQ)</comment>
        <translation>Gwatemala: quetzal (GTQ)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUINEA_BISSAU_PESO_GWP</source>
        <comment>GUINEA-BISSAU  PESO  (GWP)</comment>
        <translation>Gwinea Bissau: peso (GWP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUYANA_DOLLAR_GYD</source>
        <comment>GUYANA  DOLLAR  (GYD)</comment>
        <translation>Gujana: dolar (GYD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HONG_KONG_DOLLAR_HKD</source>
        <comment>HONG KONG  DOLLAR  (HKD)</comment>
        <translation>Hongkong: dolar (HKD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HONDURAS_LEMPIRA_HNL</source>
        <comment>HONDURAS  LEMPIRA  (HNL)</comment>
        <translation>Honduras: lempira (HNL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CROATIA_KUNA_HRK</source>
        <comment>CROATIA  KUNA  (HRK)</comment>
        <translation>Chorwacja: kuna (HRK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HAITI_GOURDE_HTG</source>
        <comment>HAITI  GOURDE  (HTG)</comment>
        <translation>Haiti: gourde (HTG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HUNGARY_FORINT_HUF</source>
        <comment>HUNGARY  FORINT  (HUF)</comment>
        <translation>Węgry: forint (HUF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_INDONESIA_RUPIAH_IDR</source>
        <comment>INDONESIA  RUPIAH  (IDR)</comment>
        <translation>Indonezja: rupia (IDR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IRELAND_PUNT_IEP</source>
        <comment>IRELAND  PUNT  (IEP)</comment>
        <translation>Irlandia: funt (IEP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ISRAEL_NEW_SHEKEL_ILS</source>
        <comment>ISRAEL  NEW SHEKEL  (ILS)</comment>
        <translation>Izrael: nowy szekel (ILS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_INDIA_BHUTAN_RUPEE_INR</source>
        <comment>INDIA; BHUTAN  RUPEE  (INR)</comment>
        <translation>Indie, Bhutan: rupia (INR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IRAQ_DINAR_IQD</source>
        <comment>IRAQ  DINAR  (IQD)</comment>
        <translation>Irak: dinar (IQD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IRAN_RIAL_IRR</source>
        <comment>IRAN  RIAL  (IRR)</comment>
        <translation>Iran: rial (IRR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ICELAND_KRONER_ISK</source>
        <comment>ICELAND  KRONER  (ISK)</comment>
        <translation>Islandia: korona (ISK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ITALY_LIRA_ITL</source>
        <comment>ITALY  LIRA  (ITL)</comment>
        <translation>Włochy: lira (ITL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JAMAICA_DOLLAR_JMD</source>
        <comment>JAMAICA  DOLLAR  (JMD)</comment>
        <translation>Jamajka: dolar (JMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JORDAN_DINAR_JOD</source>
        <comment>JORDAN  DINAR  (JOD)</comment>
        <translation>Jordania: dinar (JOD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JAPAN_YEN_JPY</source>
        <comment>JAPAN  YEN  (JPY)</comment>
        <translation>Japonia: jen (JPY)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KENYA_SHILLING_KES</source>
        <comment>KENYA  SHILLING  (KES)</comment>
        <translation>Kenia: szyling (KES)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KIRGIZISTAN_SOM_KGS</source>
        <comment>KIRGIZISTAN  SOM  (KGS)</comment>
        <translation>Kirgistan: som (KGS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CAMBODIA_RIEL_KHR</source>
        <comment>CAMBODIA  RIEL  (KHR)</comment>
        <translation>Kambodża: riel (KHR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_COMORES_FRANC_KMF</source>
        <comment>COMORES  FRANC  (KMF)</comment>
        <translation>Komory: frank (KMF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KOREA_DEMOCRATIC_PEOPLES_REPUBLIC_WON_KPW</source>
        <comment>KOREA, DEMOCRATIC PEOPLE'S REPUBLIC  WON  (KPW)</comment>
        <translation>Korea Północna: won (KPW)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KOREA_REPUBLIC_SOUTH_KOREA_WON_KRW</source>
        <comment>KOREA, REPUBLIC (SOUTH KOREA)  WON  (KRW)</comment>
        <translation>Korea Południowa: won (KRW)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KUWAIT_DINAR_KWD</source>
        <comment>KUWAIT  DINAR  (KWD)</comment>
        <translation>Kuwejt: dinar (KWD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CAYMAN_ISLANDS_DOLLAR_KYD</source>
        <comment>CAYMAN ISLANDS  DOLLAR  (KYD)</comment>
        <translation>Kajmany: dolar (KYD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KAZAKHSTAN_TENGE_KZT</source>
        <comment>KAZAKHSTAN  TENGE  (KZT)</comment>
        <translation>Kazachstan: tenge (KZT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LAOS_KIP_LAK</source>
        <comment>LAOS  KIP  (LAK)</comment>
        <translation>Laos: kip (LAK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LEBANON_POUND_LBP</source>
        <comment>LEBANON  POUND  (LBP)</comment>
        <translation>Liban: funt (LBP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SRI_LANKA_RUPEE_LKR</source>
        <comment>SRI LANKA  RUPEE  (LKR)</comment>
        <translation>Sri Lanka: rupia (LKR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LIBERIA_DOLLAR_LRD</source>
        <comment>LIBERIA  DOLLAR  (LRD)</comment>
        <translation>Liberia: dolar (LRD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LESOTHO_LOTI_PL_MALOTI_LSL</source>
        <comment>LESOTHO  LOTI (Pl.: MALOTI)  (LSL)</comment>
        <translation>Lesotho: loti (LSL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LITHUANIA_LITAS_LTL</source>
        <comment>LITHUANIA  LITAS  (LTL)</comment>
        <translation>Litwa: lit (LTL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LUXEMBOURG_FRANC_LUF</source>
        <comment>LUXEMBOURG  FRANC  (LUF)</comment>
        <translation>Luksemburg: frank (LUF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LATVIA_LAT_LVL</source>
        <comment>LATVIA  LAT  (LVL)</comment>
        <translation>Łotwa: łat (LVL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LIBYA_DINAR_LYD</source>
        <comment>LIBYA  DINAR  (LYD)</comment>
        <translation>Libia: dinar (LYD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MAROC_DIRHAM_MAD</source>
        <comment>MAROC  DIRHAM  (MAD)</comment>
        <translation>Maroko: dirham (MAD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MOLDAVIA_LEU_MDL</source>
        <comment>MOLDAVIA  LEU  (MDL)</comment>
        <translation>Mołdawia: lej (MDL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MADAGASCAR_FRANC_MGF</source>
        <comment>MADAGASCAR  FRANC  (MGF)</comment>
        <translation>Madagaskar: frank (MGF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MACEDONIA_DENAR_MKD</source>
        <comment>MACEDONIA  DENAR  (MKD)</comment>
        <translation>Macedonia: denar (MKD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MYANMAR_KYAT_MMK</source>
        <comment>MYANMAR  KYAT  (MMK)</comment>
        <translation>Mjanma: kiat (MMK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MONGOLIA_TUGRIK_MNT</source>
        <comment>MONGOLIA  TUGRIK  (MNT)</comment>
        <translation>Mongolia: tugrik (MNT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MACAU_PATACA_MOP</source>
        <comment>MACAU  PATACA  (MOP)</comment>
        <translation>Makau: pataca (MOP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MAURETANIA_OUGUIYA_MRO</source>
        <comment>MAURETANIA  OUGUIYA  (MRO)</comment>
        <translation>Mauretania: ouguiya (MRO)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALTA_LIRA_MTL</source>
        <comment>MALTA  LIRA  (MTL)</comment>
        <translation>Malta: lira (MTL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MAURITIUS_RUPEE_MUR</source>
        <comment>MAURITIUS  RUPEE  (MUR)</comment>
        <translation>Mauritius: rupia (MUR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALDIVE_ISLES_RUFIYAA_MVR</source>
        <comment>MALDIVE ISLES  RUFIYAA  (MVR)</comment>
        <translation>Malediwy: rupia (MVR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALAWI_KWACHA_MWK</source>
        <comment>MALAWI  KWACHA  (MWK)</comment>
        <translation>Malawi: kwacha (MWK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MEXICO_NEW_PESO_MXN</source>
        <comment>MEXICO  NEW PESO  (MXN)</comment>
        <translation>Meksyk: nowe peso (MXN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALAYSIA_RINGGIT_MYR</source>
        <comment>MALAYSIA  RINGGIT  (MYR)</comment>
        <translation>Malezja: ringgit (MYR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MOZAMBIQUE_METICAL_MZM</source>
        <comment>MOZAMBIQUE  METICAL  (MZM)</comment>
        <translation>Mozambik: metical (MZM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NAMIBIA_DOLLAR_NAD</source>
        <comment>NAMIBIA  DOLLAR  (NAD)</comment>
        <translation>Namibia: dolar (NAD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NIGERIA_NAIRA_NGN</source>
        <comment>NIGERIA  NAIRA  (NGN)</comment>
        <translation>Nigeria: naira (NGN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NICARAGUA_GOLD_CORDOBA_NIO</source>
        <comment>NICARAGUA  GOLD CÓRDOBA  (NIO)</comment>
        <translation>Nikaragua: złota cordoba (NIO)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NETHERLANDS_GUILDER_NLG</source>
        <comment>NETHERLANDS  GUILDER  (NLG)</comment>
        <translation>Holandia: gulden (NLG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NORWAY_KRONA_NOK</source>
        <comment>NORWAY  KRONA  (NOK)</comment>
        <translation>Norwegia: korona (NOK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NEPAL_RUPEE_NPW</source>
        <comment>NEPAL  RUPEE  (NPW)</comment>
        <translation>Nepal: rupia (NPW)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NEW_ZEALAND_DOLLAR_NZD</source>
        <comment>NEW ZEALAND  DOLLAR  (NZD)</comment>
        <translation>Nowa Zelandia: dolar (NZD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_OMAN_RIAL_OMR</source>
        <comment>OMAN  RIAL  (OMR)</comment>
        <translation>Oman: rial (OMR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PANAMA_BALBOA_PAB</source>
        <comment>PANAMA  BALBOA  (PAB)</comment>
        <translation>Panama: balboa (PAB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PERU_NEW_SOL_PEN</source>
        <comment>PERU  NEW SOL  (PEN)</comment>
        <translation>Peru: nowy sol (PEN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PAPUA_NEW_GUINEA_KINA_PGK</source>
        <comment>PAPUA NEW GUINEA  KINA  (PGK)</comment>
        <translation>Papua-Nowa Gwinea: kina (PGK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PHILIPPINES_PESO_PHP</source>
        <comment>PHILIPPINES  PESO  (PHP)</comment>
        <translation>Filipiny: peso (PHP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PAKISTAN_RUPEE_PYK</source>
        <comment>PAKISTAN  RUPEE  (PYK)</comment>
        <translation>Pakistan: rupia (PYK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_POLAND_ZLOTY_PLN</source>
        <comment>POLAND  ZLOTY  (PLN)</comment>
        <translation>Polska: złoty (PLN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PORTUGAL_ESCUDO_PTE</source>
        <comment>PORTUGAL  ESCUDO  (PTE)</comment>
        <translation>Portugalia: escudo (PTE)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PARAGUAY_GUARANI_PYG</source>
        <comment>PARAGUAY  GUARANI  (PYG)</comment>
        <translation>Paragwaj: guarani (PYG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_QATAR_RIYAL_QAR</source>
        <comment>QATAR  RIYAL  (QAR)</comment>
        <translation>Katar: rial (QAR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ROMANIA_LEU_ROL</source>
        <comment>ROMANIA  LEU  (ROL)</comment>
        <translation>Rumunia: lej (ROL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_AZERBAIJAN_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION AZERBAIJAN  ROUBLE  (RUB)</comment>
        <translation>Federacja Rosyjska, Azerbejdżan: rubel (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_BELARUS_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION BELARUS  ROUBLE  (RUB)</comment>
        <translation>Federacja Rosyjska, Białoruś: rubel (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_TADZIKISTAN_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION TADZIKISTAN  ROUBLE  (RUB)</comment>
        <translation>Federacja Rosyjska, Tadżykistan: rubel (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_UZBEKISTAN_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION UZBEKISTAN  ROUBLE  (RUB)</comment>
        <translation>Federacja Rosyjska, Uzbekistan: rubel (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUANDA_FRANC_RWF</source>
        <comment>RUANDA  FRANC  (RWF)</comment>
        <translation>Rwanda: frank (RWF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAUDI_ARABIA_RIYAL_SAR</source>
        <comment>SAUDI ARABIA  RIYAL  (SAR)</comment>
        <translation>Arabia Saudyjska: rial (SAR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SALOMON_ISLES_DOLLAR_SBD</source>
        <comment>SALOMON ISLES  DOLLAR  (SBD)</comment>
        <translation>Wyspy Salomona: dolar (SBD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SEYCHELLES_RUPEE_SCR</source>
        <comment>SEYCHELLES  RUPEE  (SCR)</comment>
        <translation>Seszele: rupia (SCR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SUDAN_DINAR_SDD</source>
        <comment>SUDAN  DINAR  (SDD)</comment>
        <translation>Sudan: dinar (SDD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SWEDEN_KRONER_SEK</source>
        <comment>SWEDEN  KRONER  (SEK)</comment>
        <translation>Szwecja: korona (SEK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SINGAPORE_DOLLAR_SGD</source>
        <comment>SINGAPORE  DOLLAR  (SGD)</comment>
        <translation>Singapur: dolar (SGD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_HELENS_POUND_SHP</source>
        <comment>ST. HELENS  POUND  (SHP)</comment>
        <translation>Wyspa Świętej Heleny: funt (SHP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SLOVENIA_TOLAR_SIT</source>
        <comment>SLOVENIA  TOLAR  (SIT)</comment>
        <translation>Słowenia: tolar (SIT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SLOVAKIA_KORUNA_SKK</source>
        <comment>SLOVAKIA  KORUNA  (SKK)</comment>
        <translation>Słowacja: korona (SKK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SIERRA_LEONE_LEONE_SLL</source>
        <comment>SIERRA LEONE  LEONE  (SLL)</comment>
        <translation>Sierra Leone: leone (SLL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SOMALIA_SHILLING_SOS</source>
        <comment>SOMALIA  SHILLING  (SOS)</comment>
        <translation>Somalia: szyling (SOS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SURINAM_GUILDER_SRG</source>
        <comment>SURINAM  GUILDER  (SRG)</comment>
        <translation>Surinam: gulden (SRG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAO_TOME_PRINCIPE_DOBRA_SRD</source>
        <comment>SÃO TOMÉ; PRINCIPE  DOBRA  (SRD)</comment>
        <translation>Wyspa Świętego Tomasza, Wyspa Książęca: dobra (SRD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EL_SALVADOR_COLON_SVC</source>
        <comment>EL SALVADOR  COLÓN  (SVC)</comment>
        <translation>Salwador: colon (SVC)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SYRIA_POUND_SYP</source>
        <comment>SYRIA  POUND  (SYP)</comment>
        <translation>Syria: funt (SYP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SWAZILAND_LILANGENI_PL_EMALANGENI_SZL</source>
        <comment>SWAZILAND  LILANGENI (Pl.: EMALANGENI)  (SZL)</comment>
        <translation>Suazi: lilangeni (SZL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_THAILAND_BAHT_THB</source>
        <comment>THAILAND  BAHT  (THB)</comment>
        <translation>Tajlandia: bat (THB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TURKMENISTAN_MANAT_TMM</source>
        <comment>TURKMENISTAN  MANAT  (TMM)</comment>
        <translation>Turkmenistan: manat (TMM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TUNESIA_DINAR_TND</source>
        <comment>TUNESIA  DINAR  (TND)</comment>
        <translation>Tunezja: dinar (TND)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TONGA_PAANGA_TOP</source>
        <comment>TONGA  PA'ANGA  (TOP)</comment>
        <translation>Tonga: paʻanga (TOP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TURKEY_LIRA_TRL</source>
        <comment>TURKEY  LIRA  (TRL)</comment>
        <translation>Turcja: lira (TRL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TRINIDAD_TOBAGO_DOLLAR_TTD</source>
        <comment>TRINIDAD; TOBAGO  DOLLAR  (TTD)</comment>
        <translation>Trynidad, Tobago: dolar (TTD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TAIWAN_DOLLAR_TWD</source>
        <comment>TAIWAN  DOLLAR  (TWD)</comment>
        <translation>Tajwan: dolar (TWD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TANZANIA_SHILLING_TZS</source>
        <comment>TANZANIA  SHILLING  (TZS)</comment>
        <translation>Tanzania: szyling (TZS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UKRAINE_HRYVNIA_UAH</source>
        <comment>UKRAINE  HRYVNIA  (UAH)</comment>
        <translation>Ukraina: hrywna (UAH)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UGANDA_SHILLING_UGX</source>
        <comment>UGANDA  SHILLING  (UGX)</comment>
        <translation>Uganda: szyling (UGX)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_USA_DOLLAR_USD</source>
        <comment>USA  DOLLAR  (USD)</comment>
        <translation>USA: dolar (USD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_URUGUAY_PESO_UYU</source>
        <comment>URUGUAY  PESO  (UYU)</comment>
        <translation>Urugwaj: peso (UYU)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UZBEKISTAN_SUM_UZS</source>
        <comment>UZBEKISTAN  SUM  (UZS)</comment>
        <translation>Uzbekistan: sum (UZS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VENEZUELA_BOLIVAR_VEB</source>
        <comment>VENEZUELA  BOLIVAR  (VEB)</comment>
        <translation>Wenezuela: boliwar (VEB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VIETNAM_DONG_VND</source>
        <comment>VIETNAM  DONG  (VND)</comment>
        <translation>Wietnam: dong (VND)</translation>
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
        <translation>Republika Środkowoafrykańska, Czad: frank CFA (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_EQUATORIAL_GUINEA_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC EQUATORIAL GUINEA CFA-FRANC  (XAF)</comment>
        <translation>Republika Środkowoafrykańska, Gwinea Równikowa: frank CFA (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_GABUN_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC GABUN CFA-FRANC  (XAF)</comment>
        <translation>Republika Środkowoafrykańska, Gabon: frank CFA (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_CAMEROON_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC CAMEROON CFA-FRANC  (XAF)</comment>
        <translation>Republika Środkowoafrykańska, Kamerun: frank CFA (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_CONGO_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC CONGO  CFA-FRANC  (XAF)</comment>
        <translation>Republika Środkowoafrykańska, Kongo: frank CFA (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ANGUILLA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ANGUILLA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Anguilla: dolar wschodniokaraibski (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ANTIGUA_AND_BARBUDA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ANTIGUA AND BARBUDA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Antigua i Barbuda: dolar wschodniokaraibski (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DOMINICA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>DOMINICA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Dominika: dolar wschodniokaraibski (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GRENADA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>GRENADA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Grenada: dolar wschodniokaraibski (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MONTSERRAT_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>MONTSERRAT EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Montserrat: dolar wschodniokaraibski (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_KITTS_AND_NEVIS_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ST. KITTS AND NEVIS EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Saint Kitts i Nevis: dolar wschodniokaraibski (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_LUCIA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ST. LUCIA  EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Saint Lucia: dolar wschodniokaraibski (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_VINCENT_AND_GRENADINES_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ST. VINCENT AND GRENADINES  EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Saint Vincent i Grenadyny: dolar wschodniokaraibski (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EUROPEAN_UNION_EUROPEAN_CURRENCY_UNIT_XEU</source>
        <comment>EUROPEAN UNION  EUROPEAN CURRENCY UNIT  (XEU)</comment>
        <translation>Unia Europejska: europejska jednostka walutowa (XEU)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BENIN_CFA_FRANC_XOF</source>
        <comment>BENIN  CFA-FRANC  (XOF)</comment>
        <translation>Benin: frank CFA (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BURKINA_FASO_CFA_FRANC_XOF</source>
        <comment>BURKINA FASO CFA-FRANC  (XOF)</comment>
        <translation>Burkina Faso: frank CFA (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IVORY_COAST_CFA_FRANC_XOF</source>
        <comment>IVORY COAST CFA-FRANC  (XOF) </comment>
        <translation>Wybrzeże Kości Słoniowej: frank CFA (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALI_CFA_FRANC_XOF</source>
        <comment>MALI CFA-FRANC  (XOF)</comment>
        <translation>Mali: frank CFA (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NIGER_CFA_FRANC_XOF</source>
        <comment>NIGER CFA-FRANC  (XOF)</comment>
        <translation>Niger: frank CFA (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SENEGAL_CFA_FRANC_XOF</source>
        <comment>SENEGAL CFA-FRANC  (XOF) </comment>
        <translation>Senegal: frank CFA (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TOGO_CFA_FRANC_XOF</source>
        <comment>TOGO  CFA-FRANC  (XOF)</comment>
        <translation>Togo: frank CFA (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_YEMEN_RIAL_YER</source>
        <comment>YEMEN  RIAL  (YER)</comment>
        <translation>Jemen: rial (YER)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_YUGOSLAVIA_DINAR_YUN</source>
        <comment>YUGOSLAVIA  DINAR  (YUN)</comment>
        <translation>Jugosławia: dinar (YUN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SOUTH_AFRICA_LESOTHO_RAND_FINANCE_ZAL</source>
        <comment>SOUTH AFRICA; LESOTHO  RAND (FINANCE)  (ZAL)</comment>
        <translation>Republika Południowej Afryki, Lesotho: rand finansowy (ZAL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SOUTH_AFRICA_LESOTHO_NAMIBIA_RAND_ZAR</source>
        <comment>SOUTH AFRICA; LESOTHO; (NAMIBIA) RAND  (ZAR)</comment>
        <translation>Republika Południowej Afryki, Lesotho, Namibia: rand (ZAR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAMBIA_KWACHA_ZMK</source>
        <comment>SAMBIA  KWACHA  (ZMK)</comment>
        <translation>Zambia: kwacha (ZMK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZAIRE_NEW_ZAIRE_ZRN</source>
        <comment>ZAIRE  NEW ZAIRE  (ZRN)</comment>
        <translation>Zair: nowy zair (ZRN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZIMBABWE_DOLLAR_ZWD</source>
        <comment>ZIMBABWE  DOLLAR  (ZWD)</comment>
        <translation>Zimbabwe: dolar (ZWD)</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallCostsView</name>
    <message>
        <source>TXT_RID_HEADER_CREDIT_AVAILABLE</source>
        <comment>Credit Available</comment>
        <translation>Dostępne środki</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_CURRENT_CREDIT_AVAILABLE_IS_2</source>
        <comment>Your current credit available is %1 units</comment>
        <translation>Dostępne środki: %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_EXPIRATION_DATE</source>
        <comment>Expiration Date</comment>
        <translation>Data ważności</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_REMAINING_CREDIT_WILL_EXPIRE_ON_1</source>
        <comment>Your remaining credit will expire on %1</comment>
        <translation>Pozostałe środki wygasną %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_LAST_DEPOSIT</source>
        <comment>Last Deposit</comment>
        <translation>Ostatnia wpłata</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_LAST_DEPOSIT_AMOUNT_WAS_1_UNITS</source>
        <comment>Your last deposit amount was %1</comment>
        <translation>Ostatnia wpłata wyniosła %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_LAST_CALL</source>
        <comment>Last Call</comment>
        <translation>Ostatnie połączenie</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_LAST_CALL_WAS_1_UNITS</source>
        <comment>The cost of your last call was %1</comment>
        <translation>Koszt ostatniego połączenia wyniósł %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DIALED_CALLS</source>
        <comment>Dialed Calls</comment>
        <translation>Wybierane</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_DIALED_CALLS_IS_1_UNITS</source>
        <comment>The cost of your dialed calls is %1</comment>
        <translation>Koszt połączeń wybieranych wynosi %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ANSWERED_CALLS</source>
        <comment>Answered Calls</comment>
        <translation>Odebrane</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_ANSWERED_CALLS_IS_1_UNITS</source>
        <comment>The cost of your answered calls is %1</comment>
        <translation>Koszt połączeń odebranych wynosi %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ALL_CALLS</source>
        <comment>All Calls</comment>
        <translation>Wszystkie</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_ALL_CALLS_IS_1_UNITS</source>
        <comment>The cost of all your calls is %1</comment>
        <translation>Koszt wszystkich połączeń wynosi %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_COSTS</source>
        <comment>Call Costs</comment>
        <translation>Koszty połączeń</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Wstecz</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallDataTimesView</name>
    <message>
        <source>TXT_RID_HEADER_DATA_TIMES</source>
        <comment>Data Times</comment>
        <translation>Czas transmisji</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_CURRENT_2_DATA_SESSION_TIME_IS_1</source>
        <comment>The current Data Session time for %2 is %1.</comment>
        <translation>Czas bieżącej sesji danych dla %2 wynosi %1.</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_TOTAL_TIME_FOR_ALL_YOUR_GPRS_DATA_SESSIONS_IS_1</source>
        <comment>The total time for all your data sessions is %1.</comment>
        <translation>Łączny czas wszystkich sesji danych wynosi %1.</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_RESET</source>
        <comment>Reset</comment>
        <translation>Zerowanie</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ARE_YOU_SURE_YOU_WANT_TO_RESET_DATA_SESSIONS_TIMER</source>
        <comment>Are you sure you want to reset the data sessions timer?</comment>
        <translation>Czy na pewno wyzerować licznik czasu sesji danych?</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Wstecz</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallDataVolumesDetailView</name>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_YOUR_SENT_DATA_VOLUME_IS_1</source>
        <comment>Your sent data volume is %1</comment>
        <translation>Ilość wysłanych danych: %1</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_YOUR_RECEIVED_DATA_VOLUME_IS_1</source>
        <comment>Your received data volume is %1</comment>
        <translation>Ilość odebranych danych: %1</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_YOUR_TOTAL_DATA_TRANSFER_VOLUME_IS_1</source>
        <comment>Your total data transfer volume is %1</comment>
        <translation>Łączna ilość przesłanych danych: %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_VOLUME</source>
        <comment>Data Volume</comment>
        <translation>Ilość danych</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Wstecz</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallDataVolumesView</name>
    <message>
        <source>TXT_RID_HEADER_RESET</source>
        <comment>Reset</comment>
        <translation>Zerowanie</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ARE_YOU_SURE_YOU_WANT_TO_RESET_DATA_SESSIONS_VOLUME</source>
        <comment>Are you sure you want to reset the data sessions volume?</comment>
        <translation>Czy na pewno wyzerować licznik ilości danych sesji?</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_VOLUMES</source>
        <comment>Data Volumes</comment>
        <translation>Ilość danych</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Wstecz</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallMeter</name>
    <message>
        <source>TXT_RID_LIST_A_UNITS</source>
        <comment>units</comment>
        <translation>jedn.</translation>
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
        <translation>Czy wyzerować licznik czasu połączeń wybieranych?</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_RESET_ANSWERED_CALLS_TIMER</source>
        <comment>Would you like to reset the Answered Calls timer?</comment>
        <translation>Czy wyzerować licznik czasu połączeń odebranych?</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_RESET_CIRCUIT_SWITCHING_DATA_CALLS_TIMER</source>
        <comment>Would you like to reset the Circuit Switching Data Calls timer?</comment>
        <translation>Czy wyzerować licznik czasu połączeń danych z komutacją łączy?</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_RESET_ALL_CALLS_TIMER</source>
        <comment>Would you like to reset the All Calls timer?</comment>
        <translation>Czy wyzerować licznik czasu wszystkich połączeń?</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_RESET_TIMER</source>
        <comment>Reset Timer</comment>
        <translation>Zerowanie licznika</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_CURRENT_REQUEST_CANNOT_BE_COMPLETED_WHILE_YOU_ARE_IN_CALLING</source>
        <comment>Current request cannot be completed, while you are in calling. </comment>
        <translation>Nie można tego wykonać w trakcie połączenia.</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_TIMES</source>
        <comment>Call Times</comment>
        <translation>Czas połączeń</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Wstecz</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Użycie: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[opcje]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opcje:</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argumenty:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Wyświetla wersję.</translation>
    </message>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Wyświetla tę pomoc.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Wyświetla pomoc z opcjami właściwymi dla Qt.</translation>
    </message>
    <message>
        <source>Unknown option '%1'.</source>
        <translation>Nieznana opcja „%1”.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Nieznane opcje: %1.</translation>
    </message>
    <message>
        <source>Missing value after '%1'.</source>
        <translation>Brak wartości po „%1”.</translation>
    </message>
    <message>
        <source>Unexpected value after '%1'.</source>
        <translation>Nieoczekiwana wartość po „%1”.</translation>
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
        <translation>Wyzeruj wszystko</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_ALL_CALL_COSTS</source>
        <comment>Reset All Call Costs</comment>
        <translation>Wyzeruj wszystkie koszty</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_DIALED_CALL_COSTS</source>
        <comment>Reset Dialed Call Costs</comment>
        <translation>Wyzeruj wybierane</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_ANSWERED_CALL_COSTS</source>
        <comment>Reset Answered Call Costs</comment>
        <translation>Wyzeruj odebrane</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CREDIT_LIMIT</source>
        <comment>Credit Limit</comment>
        <translation>Limit kredytu</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ADJUST_CREDIT_LIMIT</source>
        <comment>Adjust Credit Limit</comment>
        <translation>Ustaw limit</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CURRENCY</source>
        <comment>Currency</comment>
        <translation>Waluta</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CURRENCY_TYPE</source>
        <comment>Currency Type</comment>
        <translation>Rodzaj waluty</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_COST_PER_MINUTE</source>
        <comment>Cost Per Minute</comment>
        <translation>Cena za minutę</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CREDIT_AVAILABLE</source>
        <comment>Credit Available</comment>
        <translation>Dostępne środki</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_EXPIRATION_DATE</source>
        <comment>Expiration Date</comment>
        <translation>Data ważności</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LAST_DEPOSIT</source>
        <comment>Last Deposit</comment>
        <translation>Ostatnia wpłata</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LAST_CALL_COST</source>
        <comment>Last Call Cost</comment>
        <translation>Koszt ostatniego</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_DIALED_CALLS_COST</source>
        <comment>Dialed Calls Cost</comment>
        <translation>Koszt wybieranych</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ANSWERED_CALLS_COST</source>
        <comment>Answered Calls Cost</comment>
        <translation>Koszt odebranych</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ALL_CALLS_COST</source>
        <comment>All Calls Cost</comment>
        <translation>Koszt wszystkich</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CALL_COST_SETUP</source>
        <comment>Call Cost Setup</comment>
        <translation>Ustawienia kosztów</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_RECENT_DATA_SESSION</source>
        <comment>Current Data Session</comment>
        <translation>Bieżąca sesja danych</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_GPRS_DATA_SESSION_1</source>
        <comment>GPRS Data Session 1</comment>
        <translation>Sesja danych GPRS 1</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_GPRS_DATA_SESSION_2</source>
        <comment>GPRS Data Session 2</comment>
        <translation>Sesja danych GPRS 2</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_GPRS_DATA_SESSION_3</source>
        <comment>GPRS Data Session 3</comment>
        <translation>Sesja danych GPRS 3</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_ALL_DATA_SESSIONS</source>
        <comment>All Data Sessions</comment>
        <translation>Wszystkie sesje danych</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_TOTAL_TIME</source>
        <comment>Total Time</comment>
        <translation>Łączny czas</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_ALL_DATA_SESSIONS</source>
        <comment>Reset All Data Sessions</comment>
        <translation>Wyzeruj sesje danych</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_SENT</source>
        <comment>Sent</comment>
        <translation>Wysłane</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RECEIVED</source>
        <comment>Received</comment>
        <translation>Odebrane</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_SUM</source>
        <comment>Sum</comment>
        <translation>Razem</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_TOTAL_DATA_TRANSFERRED</source>
        <comment>Total Data Transferred</comment>
        <translation>Razem przesłano</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_GPRS_DATA_SESSION_1</source>
        <comment>GPRS Data Session 1</comment>
        <translation>Sesja danych GPRS 1</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_GPRS_DATA_SESSION_2</source>
        <comment>GPRS Data Session 2</comment>
        <translation>Sesja danych GPRS 2</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_GPRS_DATA_SESSION_3</source>
        <comment>GPRS Data Session 3</comment>
        <translation>Sesja danych GPRS 3</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LAST_CALL</source>
        <comment>Last Call</comment>
        <translation>Ostatnie połączenie</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_DIALED_CALLS</source>
        <comment>Dialed Calls</comment>
        <translation>Wybierane</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ANSWERED_CALLS</source>
        <comment>Answered Calls</comment>
        <translation>Odebrane</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CIRCUIT_SWITCH_DATA_CALLS</source>
        <comment>Data Calls</comment>
        <translation>Połączenia danych</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ALL_CALLS</source>
        <comment>All Calls</comment>
        <translation>Wszystkie</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LIFETIME_CALLS</source>
        <comment>Lifetime Calls</comment>
        <translation>Wszystkie od początku</translation>
    </message>
</context>
<context>
    <name>ReadFile</name>
    <message>
        <source>there is none</source>
        <translation>nie istnieje</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>to nie jest zwykły plik</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>jest większy niż %1 MiB</translation>
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
        <translation>Podaj PIN1</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_WRONG_PIN1</source>
        <comment>Wrong PIN1</comment>
        <translation>Błędny PIN1</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_PIN1_IS_BLOCKED</source>
        <comment>PIN1 is blocked. Only PUK1 can unblock it.</comment>
        <translation>PIN1 jest zablokowany. Odblokuje go tylko PUK1.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_SIM_CANNOT_BE_ASKED_PIN1</source>
        <comment>The SIM card cannot be asked for PIN1.</comment>
        <translation>Karta SIM nie może sprawdzić PIN1.</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_PIN2</source>
        <comment>PIN2</comment>
        <translation>PIN2</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ENTER_PIN2</source>
        <comment>Enter PIN2</comment>
        <translation>Podaj PIN2</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_WRONG_PIN2</source>
        <comment>Wrong PIN2</comment>
        <translation>Błędny PIN2</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_PIN2_IS_BLOCKED</source>
        <comment>PIN2 is blocked. Only PUK2 can unblock it.</comment>
        <translation>PIN2 jest zablokowany. Odblokuje go tylko PUK2.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_SIM_CANNOT_BE_ASKED_PIN2</source>
        <comment>The SIM card cannot be asked for PIN2.</comment>
        <translation>Karta SIM nie może sprawdzić PIN2.</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_OK</source>
        <comment>OK</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_CANCEL</source>
        <comment>Cancel</comment>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_TRIES_LEFT_1</source>
        <comment>Tries left: %1</comment>
        <translation>Pozostało prób: %1</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_4_TO_8_DIGITS</source>
        <comment>4 to 8 digits</comment>
        <translation>Od 4 do 8 cyfr</translation>
    </message>
</context>
<context>
    <name>ZMessageDlg</name>
    <message>
        <source>TXT_RID_SOFTKEY_YES</source>
        <comment>Yes</comment>
        <translation>Tak</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_NO</source>
        <comment>No</comment>
        <translation>Nie</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_OK</source>
        <comment>OK</comment>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ZNoticeDlg</name>
    <message>
        <source>TXT_RID_SOFTKEY_OK</source>
        <comment>OK</comment>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ZSingleCaptureDlg</name>
    <message>
        <source>TXT_RID_SOFTKEY_OK</source>
        <comment>OK</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_CANCEL</source>
        <comment>Cancel</comment>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>ZSingleSelectDlg</name>
    <message>
        <source>TXT_RID_SOFTKEY_SELECT</source>
        <comment>Select</comment>
        <translation>Wybierz</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_CANCEL</source>
        <comment>Cancel</comment>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>ZSoftKey</name>
    <message>
        <source>TXT_RID_LABEL_LEFT_SOFTKEY</source>
        <comment>Left softkey</comment>
        <translation>Lewy przycisk</translation>
    </message>
    <message>
        <source>TXT_RID_LABEL_RIGHT_SOFTKEY</source>
        <comment>Right softkey</comment>
        <translation>Prawy przycisk</translation>
    </message>
</context>
<context>
    <name>handset</name>
    <message>
        <source>The call log is damaged. The next start begins a new one, with what can be read of it.</source>
        <translation>Rejestr połączeń jest uszkodzony. Następne uruchomienie założy nowy, z tym, co da się odczytać.</translation>
    </message>
    <message>
        <source>The call log is damaged, and that cannot be noted for the next start.</source>
        <translation>Rejestr połączeń jest uszkodzony i nie można tego odnotować na następne uruchomienie.</translation>
    </message>
    <message>
        <source>Copying the call log</source>
        <translation>Kopiowanie rejestru połączeń</translation>
    </message>
    <message>
        <source>Reading the damaged call log once more</source>
        <translation>Ponowny odczyt uszkodzonego rejestru</translation>
    </message>
    <message>
        <source>Writing the new call log to the disk</source>
        <translation>Zapisywanie nowego rejestru na dysku</translation>
    </message>
    <message>
        <source>Checking the new call log</source>
        <translation>Sprawdzanie nowego rejestru</translation>
    </message>
    <message>
        <source>Looking for the end of the damage</source>
        <translation>Szukanie końca uszkodzenia</translation>
    </message>
    <message>
        <source>Counting what was read</source>
        <translation>Liczenie tego, co odczytano</translation>
    </message>
    <message>
        <source>Bringing the call log up to date</source>
        <translation>Aktualizowanie rejestru połączeń</translation>
    </message>
    <message>
        <source>belongs to another user</source>
        <translation>należy do innego użytkownika</translation>
    </message>
    <message>
        <source>may be written by other users</source>
        <translation>może być zapisywany przez innych użytkowników</translation>
    </message>
    <message>
        <source>The state directory "%1" %2, who can change what is kept in it.</source>
        <translation>Katalog stanu "%1" %2, a oni mogą zmienić jego zawartość.</translation>
    </message>
    <message>
        <source>The state directory "%1" lies in one that may be written by other users, who can put another in its place.</source>
        <translation>Katalog stanu "%1" leży w katalogu, który mogą zapisywać inni użytkownicy, a oni mogą podstawić inny na jego miejsce.</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>Oczekiwanie na %1</translation>
    </message>
    <message>
        <source>another process</source>
        <translation>inny proces</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>niepowodzenie</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>nieznany</translation>
    </message>
    <message>
        <source>initializing</source>
        <translation>inicjowanie</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>zablokowany</translation>
    </message>
    <message>
        <source>locked: PIN</source>
        <translation>zablokowany: PIN</translation>
    </message>
    <message>
        <source>locked: PIN2</source>
        <translation>zablokowany: PIN2</translation>
    </message>
    <message>
        <source>locked: PUK</source>
        <translation>zablokowany: PUK</translation>
    </message>
    <message>
        <source>locked: PUK2</source>
        <translation>zablokowany: PUK2</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>wyłączony</translation>
    </message>
    <message>
        <source>disabling</source>
        <translation>wyłączanie</translation>
    </message>
    <message>
        <source>enabling</source>
        <translation>włączanie</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>włączony</translation>
    </message>
    <message>
        <source>searching</source>
        <translation>szuka sieci</translation>
    </message>
    <message>
        <source>registered</source>
        <translation>zarejestrowany</translation>
    </message>
    <message>
        <source>disconnecting</source>
        <translation>rozłączanie</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>łączenie</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>połączony</translation>
    </message>
    <message>
        <source>unregistered</source>
        <translation>niezarejestrowany</translation>
    </message>
    <message>
        <source>denied</source>
        <translation>odrzucony przez sieć</translation>
    </message>
    <message>
        <source>roaming</source>
        <translation>roaming</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>%1 is not running</source>
        <translation>%1 nie działa</translation>
    </message>
    <message>
        <source>asking %1</source>
        <translation>pytanie do %1</translation>
    </message>
    <message>
        <source>no modem</source>
        <translation>brak modemu</translation>
    </message>
    <message>
        <source>%1 does not let this user talk to it</source>
        <translation>%1 nie pozwala temu użytkownikowi na rozmowę z nim</translation>
    </message>
    <message>
        <source>%1 does not tell its modems</source>
        <translation>%1 nie podaje swoich modemów</translation>
    </message>
    <message>
        <source>There is no system bus: %1</source>
        <translation>Nie ma magistrali systemowej: %1</translation>
    </message>
    <message>
        <source>ModemManager does not answer</source>
        <translation>ModemManager nie odpowiada</translation>
    </message>
    <message>
        <source>The call cannot be made</source>
        <translation>Nie można zadzwonić</translation>
    </message>
    <message>
        <source>The call cannot be made: %1.</source>
        <translation>Nie można zadzwonić: %1.</translation>
    </message>
    <message>
        <source>The call cannot be answered</source>
        <translation>Nie można odebrać połączenia</translation>
    </message>
    <message>
        <source>The call cannot be ended</source>
        <translation>Nie można zakończyć połączenia</translation>
    </message>
    <message>
        <source>it is busy</source>
        <translation>jest zajęty</translation>
    </message>
    <message>
        <source>it is not ready for that</source>
        <translation>nie jest na to gotowy</translation>
    </message>
    <message>
        <source>the modem cannot do that</source>
        <translation>modem tego nie potrafi</translation>
    </message>
    <message>
        <source>that is no number to call</source>
        <translation>pod ten numer nie można zadzwonić</translation>
    </message>
    <message>
        <source>there is no network</source>
        <translation>brak sieci</translation>
    </message>
    <message>
        <source>this user may not</source>
        <translation>ten użytkownik nie może</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>nie odpowiada</translation>
    </message>
    <message>
        <source>it failed (%1)</source>
        <translation>nie powiodło się (%1)</translation>
    </message>
    <message>
        <source>The network has not put the call through.</source>
        <translation>Sieć nie zestawiła połączenia.</translation>
    </message>
    <message>
        <source>The telephone does not dial: %1.</source>
        <translation>Telefon nie wybiera numeru: %1.</translation>
    </message>
    <message>
        <source>The telephone does not take the call: %1.</source>
        <translation>Telefon nie odbiera połączenia: %1.</translation>
    </message>
    <message>
        <source>The telephone does not end the call: %1.</source>
        <translation>Telefon nie kończy połączenia: %1.</translation>
    </message>
</context>
<context>
    <name>host::AccountSection</name>
    <message>
        <source>Nothing has been paid in.</source>
        <translation>Nic jeszcze nie wpłacono.</translation>
    </message>
    <message>
        <source>Credit: %1</source>
        <translation>Środki: %1</translation>
    </message>
    <message>
        <source>Last deposit: %1, good until %2</source>
        <translation>Ostatnia wpłata: %1, ważna do %2</translation>
    </message>
    <message>
        <source>Prepaid account</source>
        <translation>Konto na kartę</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Środki</translation>
    </message>
    <message>
        <source>Last deposit</source>
        <translation>Ostatnia wpłata</translation>
    </message>
    <message>
        <source>Amount to pay in</source>
        <translation>Kwota wpłaty</translation>
    </message>
    <message>
        <source>In units or in the currency, as costs are</source>
        <translation>W jednostkach albo w walucie, tak jak koszty</translation>
    </message>
    <message>
        <source>Why nothing was paid in</source>
        <translation>Dlaczego nic nie wpłacono</translation>
    </message>
    <message>
        <source>Good until</source>
        <translation>Ważne do</translation>
    </message>
    <message>
        <source>Until when the deposit is good: year, month, day</source>
        <translation>Do kiedy wpłata jest ważna: rok, miesiąc, dzień</translation>
    </message>
    <message>
        <source>&amp;Top up</source>
        <translation>&amp;Doładuj</translation>
    </message>
    <message>
        <source>Pays the amount in</source>
        <translation>Wpłaca kwotę</translation>
    </message>
    <message>
        <source>until</source>
        <translation>do</translation>
    </message>
</context>
<context>
    <name>host::CallNotice</name>
    <message>
        <source>Dialing</source>
        <translation>Wybieranie</translation>
    </message>
    <message>
        <source>Incoming call</source>
        <translation>Połączenie przychodzące</translation>
    </message>
    <message>
        <source>Call waiting</source>
        <translation>Połączenie oczekujące</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>Zawieszone</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Połączono</translation>
    </message>
    <message>
        <source>Number withheld</source>
        <translation>Numer zastrzeżony</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Połączenie</translation>
    </message>
    <message>
        <source>Number to dial</source>
        <translation>Numer do wybrania</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Połączenie zakończone</translation>
    </message>
    <message>
        <source>Not answered</source>
        <translation>Nieodebrane</translation>
    </message>
</context>
<context>
    <name>host::CallsModel</name>
    <message>
        <source>Dialed, not answered</source>
        <translation>Wybierane, bez odpowiedzi</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Nieodebrane</translation>
    </message>
    <message>
        <source>Data call</source>
        <translation>Połączenie danych</translation>
    </message>
    <message>
        <source>Dialed</source>
        <translation>Wybierane</translation>
    </message>
    <message>
        <source>Answered</source>
        <translation>Odebrane</translation>
    </message>
    <message>
        <source>number withheld</source>
        <translation>numer zastrzeżony</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Kierunek</translation>
    </message>
    <message>
        <source>Number and time</source>
        <translation>Numer i czas</translation>
    </message>
    <message>
        <source>Duration and cost</source>
        <translation>Czas trwania i koszt</translation>
    </message>
    <message>
        <source>units</source>
        <translation>jednostki</translation>
    </message>
</context>
<context>
    <name>host::CostSection</name>
    <message>
        <source>not available</source>
        <translation>niedostępne</translation>
    </message>
    <message>
        <source>units</source>
        <translation>jednostki</translation>
    </message>
    <message>
        <source>Costs</source>
        <translation>Koszty</translation>
    </message>
    <message>
        <source>Costs are in</source>
        <translation>Koszty w</translation>
    </message>
    <message>
        <source>the currency</source>
        <translation>walucie</translation>
    </message>
    <message>
        <source>Price of a unit</source>
        <translation>Cena jednostki</translation>
    </message>
    <message>
        <source>The price of a unit, as 0.23</source>
        <translation>Cena jednostki, na przykład 0.23</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Waluta</translation>
    </message>
    <message>
        <source>The currency's code, at most three characters</source>
        <translation>Kod waluty, najwyżej trzy znaki</translation>
    </message>
    <message>
        <source>Credit limit</source>
        <translation>Limit kredytu</translation>
    </message>
    <message>
        <source>Cost of the call</source>
        <translation>Koszt połączenia</translation>
    </message>
    <message>
        <source>Why the costs were not set</source>
        <translation>Dlaczego kosztów nie ustawiono</translation>
    </message>
    <message>
        <source>Set &amp;price</source>
        <translation>Ustaw &amp;cenę</translation>
    </message>
    <message>
        <source>Writes price and currency to the SIM card</source>
        <translation>Zapisuje cenę i walutę na karcie SIM</translation>
    </message>
    <message>
        <source>This call</source>
        <translation>To połączenie</translation>
    </message>
    <message>
        <source>Last call</source>
        <translation>Ostatnie połączenie</translation>
    </message>
    <message>
        <source>off</source>
        <translation>wyłączony</translation>
    </message>
    <message>
        <source>%1; units left: %2</source>
        <translation>%1; pozostało jednostek: %2</translation>
    </message>
    <message>
        <source>The modem's advice of charge says what calls cost.</source>
        <translation>O koszcie połączeń informuje modem.</translation>
    </message>
    <message>
        <source>This telephone charges no calls by itself.</source>
        <translation>Ten telefon sam nie nalicza opłat za połączenia.</translation>
    </message>
</context>
<context>
    <name>host::Display</name>
    <message>
        <source>Display of the phone</source>
        <translation>Wyświetlacz telefonu</translation>
    </message>
</context>
<context>
    <name>host::FailuresSection</name>
    <message>
        <source>Failures</source>
        <translation>Błędy</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operacja</translation>
    </message>
    <message>
        <source>Let it &amp;fail</source>
        <translation>Niech się nie &amp;uda</translation>
    </message>
    <message>
        <source>From now on the operation only answers the code</source>
        <translation>Od tej chwili operacja odpowiada tylko tym kodem</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>The chosen operation works again</source>
        <translation>Wybrana operacja znów działa</translation>
    </message>
    <message>
        <source>Remove a&amp;ll</source>
        <translation>Usuń &amp;wszystkie</translation>
    </message>
    <message>
        <source>Every operation works again</source>
        <translation>Wszystkie operacje znów działają</translation>
    </message>
    <message>
        <source>What the phone's libraries ask of the telephone</source>
        <translation>Czego biblioteki telefonu od niego żądają</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Kod</translation>
    </message>
    <message>
        <source>What the operation answers: a name, or a number; not Success</source>
        <translation>Co odpowiada operacja: nazwa albo liczba; nie Success</translation>
    </message>
    <message>
        <source>Operations that fail</source>
        <translation>Operacje, które się nie udają</translation>
    </message>
    <message>
        <source>Failing now</source>
        <translation>Teraz się nie udaje</translation>
    </message>
</context>
<context>
    <name>host::FiguresSection</name>
    <message>
        <source>Last call</source>
        <translation>Ostatnie połączenie</translation>
    </message>
    <message>
        <source>Dialed calls</source>
        <translation>Wybierane</translation>
    </message>
    <message>
        <source>Answered calls</source>
        <translation>Odebrane</translation>
    </message>
    <message>
        <source>Data calls</source>
        <translation>Połączenia danych</translation>
    </message>
    <message>
        <source>All calls</source>
        <translation>Wszystkie połączenia</translation>
    </message>
    <message>
        <source>Lifetime calls</source>
        <translation>Wszystkie od początku</translation>
    </message>
    <message>
        <source>Call timers</source>
        <translation>Liczniki połączeń</translation>
    </message>
    <message>
        <source>Add a &amp;ready-made history</source>
        <translation>Dodaj gotową &amp;historię</translation>
    </message>
    <message>
        <source>Adds a dozen calls of the last days to the call log</source>
        <translation>Dodaje do rejestru kilkanaście połączeń z ostatnich dni</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>niedostępne</translation>
    </message>
</context>
<context>
    <name>host::Keypad</name>
    <message>
        <source>Call</source>
        <translation>Zadzwoń</translation>
    </message>
    <message>
        <source>Hang up</source>
        <translation>Rozłącz</translation>
    </message>
    <message>
        <source>Left softkey</source>
        <translation>Lewy przycisk</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>W górę</translation>
    </message>
    <message>
        <source>Right softkey</source>
        <translation>Prawy przycisk</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Wybierz</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>W dół</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>Gwiazdka</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>Krzyżyk</translation>
    </message>
    <message>
        <source>Keypad</source>
        <translation>Klawiatura</translation>
    </message>
</context>
<context>
    <name>host::Line</name>
    <message>
        <source>Dialing</source>
        <translation>Wybieranie</translation>
    </message>
    <message>
        <source>Ringing</source>
        <translation>Dzwoni</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Oczekuje</translation>
    </message>
    <message>
        <source>On hold %1</source>
        <translation>Zawieszone %1</translation>
    </message>
    <message>
        <source>Connected %1</source>
        <translation>Połączono %1</translation>
    </message>
    <message>
        <source>No modem</source>
        <translation>Brak modemu</translation>
    </message>
    <message>
        <source>number withheld</source>
        <translation>numer zastrzeżony</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Wolna</translation>
    </message>
    <message>
        <source>The credit limit is reached in %1 s.</source>
        <translation>Limit kredytu zostanie osiągnięty za %1 s.</translation>
    </message>
    <message>
        <source>The credit is used up in %1 s.</source>
        <translation>Środki wyczerpią się za %1 s.</translation>
    </message>
    <message>
        <source>The telephone has ended the call: the credit limit is reached.</source>
        <translation>Telefon zakończył połączenie: osiągnięto limit kredytu.</translation>
    </message>
    <message>
        <source>The telephone has ended the call: the credit is used up.</source>
        <translation>Telefon zakończył połączenie: środki się wyczerpały.</translation>
    </message>
    <message>
        <source>This telephone cannot be driven from here.</source>
        <translation>Tym telefonem nie można stąd sterować.</translation>
    </message>
    <message>
        <source>data call</source>
        <translation>połączenie danych</translation>
    </message>
    <message>
        <source>voice call</source>
        <translation>połączenie głosowe</translation>
    </message>
    <message>
        <source>The call log cannot be written. The end of a call or a packet-data session is kept in memory, and written as soon as it can be.</source>
        <translation>Nie można zapisać rejestru połączeń. Koniec połączenia albo sesji danych jest trzymany w pamięci i zostanie zapisany, gdy tylko będzie to możliwe.</translation>
    </message>
</context>
<context>
    <name>host::LineSection</name>
    <message>
        <source>&amp;Dial</source>
        <translation>&amp;Wybierz numer</translation>
    </message>
    <message>
        <source>Calls the number from this phone</source>
        <translation>Dzwoni z tego telefonu pod podany numer</translation>
    </message>
    <message>
        <source>&amp;Other side answers</source>
        <translation>Druga &amp;strona odbiera</translation>
    </message>
    <message>
        <source>The called side answers; the call is connected</source>
        <translation>Druga strona odbiera; połączenie jest nawiązane</translation>
    </message>
    <message>
        <source>Dial d&amp;ata call</source>
        <translation>Połączenie &amp;danych</translation>
    </message>
    <message>
        <source>Sets up a circuit-switched data call to the number</source>
        <translation>Nawiązuje połączenie danych z komutacją łączy z podanym numerem</translation>
    </message>
    <message>
        <source>&amp;Incoming call</source>
        <translation>Połączenie &amp;przychodzące</translation>
    </message>
    <message>
        <source>The number calls this phone; empty for a withheld number</source>
        <translation>Numer dzwoni do tego telefonu; puste oznacza numer zastrzeżony</translation>
    </message>
    <message>
        <source>&amp;Hang up</source>
        <translation>&amp;Rozłącz</translation>
    </message>
    <message>
        <source>Ends the call on the line, whatever its state</source>
        <translation>Kończy połączenie na linii, w każdym jego stanie</translation>
    </message>
    <message>
        <source>A&amp;nswer</source>
        <translation>&amp;Odbierz</translation>
    </message>
    <message>
        <source>Answers the incoming call; the call is connected</source>
        <translation>Odbiera połączenie przychodzące; połączenie jest nawiązane</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linia</translation>
    </message>
    <message>
        <source>State of the line</source>
        <translation>Stan linii</translation>
    </message>
    <message>
        <source>End of charging</source>
        <translation>Koniec naliczania</translation>
    </message>
    <message>
        <source>What is not in the call log yet</source>
        <translation>Czego jeszcze nie ma w rejestrze połączeń</translation>
    </message>
    <message>
        <source>What the telephone has told</source>
        <translation>Co zgłosił telefon</translation>
    </message>
    <message>
        <source>Digits, +, * and #</source>
        <translation>Cyfry, +, * i #</translation>
    </message>
    <message>
        <source>Clear the number</source>
        <translation>Wyczyść numer</translation>
    </message>
    <message>
        <source>N&amp;umber</source>
        <translation>N&amp;umer</translation>
    </message>
</context>
<context>
    <name>host::MenuScreen</name>
    <message>
        <source>TXT_RID_HEADER_RECENT_CALLS</source>
        <comment>Recent Calls</comment>
        <translation>Ostatnie połączenia</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_OPEN</source>
        <comment>Open</comment>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_EXIT</source>
        <comment>Exit</comment>
        <translation>Wyjdź</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_TIMES</source>
        <comment>Call Times</comment>
        <translation>Czas połączeń</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_COSTS</source>
        <comment>Call Costs</comment>
        <translation>Koszty połączeń</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_TIMES</source>
        <comment>Data Times</comment>
        <translation>Czas transmisji</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_VOLUMES</source>
        <comment>Data Volumes</comment>
        <translation>Ilość danych</translation>
    </message>
</context>
<context>
    <name>host::ModemSection</name>
    <message>
        <source>call times</source>
        <translation>czas połączeń</translation>
    </message>
    <message>
        <source>all calls</source>
        <translation>wszystkie połączenia</translation>
    </message>
    <message>
        <source>data calls</source>
        <translation>połączenia danych</translation>
    </message>
    <message>
        <source>data sessions</source>
        <translation>sesje danych</translation>
    </message>
    <message>
        <source>advice of charge</source>
        <translation>informacja o opłatach</translation>
    </message>
    <message>
        <source>PIN2</source>
        <translation>PIN2</translation>
    </message>
    <message>
        <source>credit</source>
        <translation>środki</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nic</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>połączono</translation>
    </message>
    <message>
        <source>, %1 B sent, %2 B received</source>
        <translation>, wysłano %1 B, odebrano %2 B</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>nie połączono</translation>
    </message>
    <message>
        <source>none</source>
        <translation>brak</translation>
    </message>
    <message>
        <source>Modem</source>
        <translation>Modem</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Sieć</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Dane</translation>
    </message>
    <message>
        <source>Charged by</source>
        <translation>Opłaty nalicza</translation>
    </message>
    <message>
        <source>Recorded by</source>
        <translation>Rejestruje</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Niedostępne</translation>
    </message>
    <message>
        <source>%1, through %2</source>
        <translation>%1, przez %2</translation>
    </message>
    <message>
        <source>the modem's advice of charge</source>
        <translation>informacja o opłatach z modemu</translation>
    </message>
    <message>
        <source>the tariff of this telephone</source>
        <translation>taryfa tego telefonu</translation>
    </message>
    <message>
        <source>this window</source>
        <translation>to okno</translation>
    </message>
    <message>
        <source>another process</source>
        <translation>inny proces</translation>
    </message>
    <message>
        <source>nobody: the call log cannot be written</source>
        <translation>nikt: nie można zapisać rejestru połączeń</translation>
    </message>
</context>
<context>
    <name>host::OpeningProgress</name>
    <message>
        <source>Opening the telephone</source>
        <translation>Otwieranie telefonu</translation>
    </message>
    <message>
        <source>What is being done</source>
        <translation>Co się teraz dzieje</translation>
    </message>
    <message>
        <source>How far it is</source>
        <translation>Jak daleko to zaszło</translation>
    </message>
</context>
<context>
    <name>host::PacketSection</name>
    <message>
        <source>%1 B sent, %2 B received</source>
        <translation>wysłano %1 B, odebrano %2 B</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>pusta</translation>
    </message>
    <message>
        <source>%1 (id %2), %3
%4</source>
        <translation>%1 (id %2), %3
%4</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>niedostępne</translation>
    </message>
    <message>
        <source>%1, %2 B
%3</source>
        <translation>%1, %2 B
%3</translation>
    </message>
    <message>
        <source>Packet data</source>
        <translation>Dane pakietowe</translation>
    </message>
    <message>
        <source>Access point name</source>
        <translation>Nazwa punktu dostępu</translation>
    </message>
    <message>
        <source>1 to 101 characters</source>
        <translation>Od 1 do 101 znaków</translation>
    </message>
    <message>
        <source>Bytes sent each second</source>
        <translation>Bajty wysyłane co sekundę</translation>
    </message>
    <message>
        <source>Bytes received each second</source>
        <translation>Bajty odbierane co sekundę</translation>
    </message>
    <message>
        <source>&amp;Start session</source>
        <translation>&amp;Rozpocznij sesję</translation>
    </message>
    <message>
        <source>Begins a session, which counts bytes and time</source>
        <translation>Zaczyna sesję, która liczy bajty i czas</translation>
    </message>
    <message>
        <source>Sto&amp;p session</source>
        <translation>&amp;Zatrzymaj sesję</translation>
    </message>
    <message>
        <source>Ends the session</source>
        <translation>Kończy sesję</translation>
    </message>
    <message>
        <source>Why the session was not changed</source>
        <translation>Dlaczego sesji nie zmieniono</translation>
    </message>
    <message>
        <source>All sessions</source>
        <translation>Wszystkie sesje</translation>
    </message>
    <message>
        <source>Bytes sent a second</source>
        <translation>Bajty wysyłane na sekundę</translation>
    </message>
    <message>
        <source>Bytes received a second</source>
        <translation>Bajty odbierane na sekundę</translation>
    </message>
    <message>
        <source>Session %1</source>
        <translation>Sesja %1</translation>
    </message>
    <message>
        <source>Session %1:</source>
        <translation>Sesja %1:</translation>
    </message>
    <message>
        <source>All sessions:</source>
        <translation>Wszystkie sesje:</translation>
    </message>
    <message>
        <source>S&amp;end update</source>
        <translation>&amp;Wyślij aktualizację</translation>
    </message>
    <message>
        <source>Tells the screens that the figures have changed</source>
        <translation>Powiadamia ekrany, że wartości się zmieniły</translation>
    </message>
</context>
<context>
    <name>host::Panel</name>
    <message>
        <source>Sides of the telephone</source>
        <translation>Strony telefonu</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>Rozmowy</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Opłaty</translation>
    </message>
    <message>
        <source>SIM</source>
        <translation>SIM</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Dane</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Rejestr</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>Błędy</translation>
    </message>
</context>
<context>
    <name>host::PhoneWindow</name>
    <message>
        <source>Recent Calls</source>
        <translation>Ostatnie połączenia</translation>
    </message>
</context>
<context>
    <name>host::Pin2Section</name>
    <message>
        <source>Blocked for good.</source>
        <translation>Zablokowany na zawsze.</translation>
    </message>
    <message>
        <source>Blocked: only PUK2 helps.</source>
        <translation>Zablokowany: pomoże tylko PUK2.</translation>
    </message>
    <message>
        <source>Off: nobody is asked for it.</source>
        <translation>Wyłączony: nikt nie jest o niego pytany.</translation>
    </message>
    <message>
        <source>On, and entered.</source>
        <translation>Włączony i podany.</translation>
    </message>
    <message>
        <source>On, not entered.</source>
        <translation>Włączony, nie podany.</translation>
    </message>
    <message>
        <source>Tries left: PIN2 %1, PUK2 %2.</source>
        <translation>Pozostało prób: PIN2 %1, PUK2 %2.</translation>
    </message>
    <message>
        <source>PIN2</source>
        <translation>PIN2</translation>
    </message>
    <message>
        <source>State of PIN2</source>
        <translation>Stan PIN2</translation>
    </message>
    <message>
        <source>PIN2 is on</source>
        <translation>PIN2 włączony</translation>
    </message>
    <message>
        <source>Four to eight digits</source>
        <translation>Od czterech do ośmiu cyfr</translation>
    </message>
    <message>
        <source>PUK2</source>
        <translation>PUK2</translation>
    </message>
    <message>
        <source>Eight digits</source>
        <translation>Osiem cyfr</translation>
    </message>
    <message>
        <source>New PIN2</source>
        <translation>Nowy PIN2</translation>
    </message>
    <message>
        <source>What came of it</source>
        <translation>Wynik</translation>
    </message>
    <message>
        <source>The phone asks for it where a file is written with PIN2</source>
        <translation>Telefon pyta o niego, gdy plik zapisuje się z PIN2</translation>
    </message>
    <message>
        <source>&amp;Switch off and on</source>
        <translation>&amp;Wyłącz i włącz</translation>
    </message>
    <message>
        <source>Forgets that PIN2 has been entered</source>
        <translation>Zapomina, że PIN2 został podany</translation>
    </message>
    <message>
        <source>&amp;Enter</source>
        <translation>&amp;Podaj</translation>
    </message>
    <message>
        <source>Presents PIN2 to the card, as the phone does; a wrong one costs a try</source>
        <translation>Przedstawia PIN2 karcie, tak jak telefon; błędny kosztuje jedną próbę</translation>
    </message>
    <message>
        <source>Un&amp;block</source>
        <translation>Od&amp;blokuj</translation>
    </message>
    <message>
        <source>Sets the new PIN2 and gives all tries back</source>
        <translation>Ustawia nowy PIN2 i przywraca wszystkie próby</translation>
    </message>
    <message>
        <source>PIN2 has been entered.</source>
        <translation>PIN2 został podany.</translation>
    </message>
    <message>
        <source>Wrong PIN2.</source>
        <translation>Błędny PIN2.</translation>
    </message>
    <message>
        <source>The new PIN2 counts.</source>
        <translation>Obowiązuje nowy PIN2.</translation>
    </message>
    <message>
        <source>Wrong PUK2.</source>
        <translation>Błędny PUK2.</translation>
    </message>
</context>
<context>
    <name>host::RecentCallsSection</name>
    <message>
        <source>Recent calls</source>
        <translation>Ostatnie połączenia</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>Deletes the chosen call; the totals stay</source>
        <translation>Usuwa wybrane połączenie; sumy pozostają</translation>
    </message>
    <message>
        <source>Delete a&amp;ll ...</source>
        <translation>Usuń &amp;wszystkie ...</translation>
    </message>
    <message>
        <source>Deletes every call that is over; the totals stay</source>
        <translation>Usuwa wszystkie zakończone połączenia; sumy pozostają</translation>
    </message>
    <message>
        <source>Why the calls were not read or deleted</source>
        <translation>Dlaczego połączeń nie odczytano lub nie usunięto</translation>
    </message>
    <message>
        <source>The call log cannot be read.</source>
        <translation>Nie można odczytać rejestru połączeń.</translation>
    </message>
    <message>
        <source>Delete all calls that are over? The totals stay as they are.</source>
        <translation>Usunąć wszystkie zakończone połączenia? Sumy pozostaną bez zmian.</translation>
    </message>
    <message>
        <source>&amp;Delete all</source>
        <translation>Usuń &amp;wszystkie</translation>
    </message>
</context>
<context>
    <name>host::SimFilesSection</name>
    <message>
        <source>%1  =  %2 units</source>
        <translation>%1  =  %2 jednostek</translation>
    </message>
    <message>
        <source>  (newest)</source>
        <translation>  (najnowszy)</translation>
    </message>
    <message>
        <source>%1  =  no limit</source>
        <translation>%1  =  bez limitu</translation>
    </message>
    <message>
        <source>no currency</source>
        <translation>bez waluty</translation>
    </message>
    <message>
        <source>%1  =  %2, %3 a unit</source>
        <translation>%1  =  %2, %3 za jednostkę</translation>
    </message>
    <message>
        <source>call meter</source>
        <translation>licznik opłat</translation>
    </message>
    <message>
        <source>maximum</source>
        <translation>maksimum</translation>
    </message>
    <message>
        <source>price</source>
        <translation>cena</translation>
    </message>
    <message>
        <source>freely</source>
        <translation>dowolny</translation>
    </message>
    <message>
        <source>with PIN2</source>
        <translation>z PIN2</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nigdy</translation>
    </message>
    <message>
        <source>Files of the SIM card</source>
        <translation>Pliki karty SIM</translation>
    </message>
    <message>
        <source>Why the SIM card was not changed</source>
        <translation>Dlaczego karty SIM nie zmieniono</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>zapis: %1</translation>
    </message>
    <message>
        <source>Who may write %1</source>
        <translation>Kto może zapisać: %1</translation>
    </message>
</context>
<context>
    <name>host::StateSection</name>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>In memory; gone when the window closes.</source>
        <translation>W pamięci; zniknie po zamknięciu okna.</translation>
    </message>
    <message>
        <source>Kept in %1</source>
        <translation>Przechowywany w %1</translation>
    </message>
    <message>
        <source>Where the state is kept</source>
        <translation>Gdzie przechowywany jest stan</translation>
    </message>
    <message>
        <source>New telephone ...</source>
        <translation>Nowy telefon ...</translation>
    </message>
    <message>
        <source>Begins with a new telephone, after a question</source>
        <translation>Zaczyna z nowym telefonem, po pytaniu</translation>
    </message>
    <message>
        <source>What there is now is kept in a file beside it.</source>
        <translation>To, co jest teraz, zostaje w pliku obok.</translation>
    </message>
    <message>
        <source>What there is now is lost.</source>
        <translation>To, co jest teraz, przepada.</translation>
    </message>
    <message>
        <source>Begin with a new telephone? Calls, figures, settings and the simulated SIM card begin anew; a call that is on ends.</source>
        <translation>Zacząć z nowym telefonem? Połączenia, liczniki, ustawienia i symulowana karta SIM zaczynają od nowa; trwające połączenie się kończy.</translation>
    </message>
    <message>
        <source>New telephone</source>
        <translation>Nowy telefon</translation>
    </message>
    <message>
        <source>Begin anew</source>
        <translation>Zacznij od nowa</translation>
    </message>
</context>
<context>
    <name>host::StatusText</name>
    <message>
        <source>the number is not one that can be dialed</source>
        <translation>tego numeru nie można wybrać</translation>
    </message>
    <message>
        <source>the line is in another state</source>
        <translation>linia jest w innym stanie</translation>
    </message>
    <message>
        <source>not allowed now: nothing more may be charged</source>
        <translation>teraz niedozwolone: nic więcej nie można naliczyć</translation>
    </message>
    <message>
        <source>an amount of at least one unit, and not more than the account holds</source>
        <translation>kwota co najmniej jednej jednostki, i nie większa, niż mieści konto</translation>
    </message>
    <message>
        <source>not possible now</source>
        <translation>teraz niemożliwe</translation>
    </message>
    <message>
        <source>not allowed</source>
        <translation>niedozwolone</translation>
    </message>
    <message>
        <source>no price, or a currency of more than three characters</source>
        <translation>brak ceny, albo waluta dłuższa niż trzy znaki</translation>
    </message>
    <message>
        <source>the SIM card refuses</source>
        <translation>karta SIM odmawia</translation>
    </message>
    <message>
        <source>an access point name has 1 to 101 Latin-1 characters</source>
        <translation>nazwa punktu dostępu ma od 1 do 101 znaków Latin-1</translation>
    </message>
    <message>
        <source>a session is running, or none is</source>
        <translation>sesja trwa, albo żadna nie trwa</translation>
    </message>
    <message>
        <source>PUK2 has eight digits, a PIN2 four to eight</source>
        <translation>PUK2 ma osiem cyfr, a PIN2 od czterech do ośmiu</translation>
    </message>
    <message>
        <source>PUK2 is blocked, too</source>
        <translation>PUK2 także jest zablokowany</translation>
    </message>
    <message>
        <source>a PIN2 has four to eight digits</source>
        <translation>PIN2 ma od czterech do ośmiu cyfr</translation>
    </message>
    <message>
        <source>PIN2 is blocked</source>
        <translation>PIN2 jest zablokowany</translation>
    </message>
    <message>
        <source>the call is not kept any more</source>
        <translation>tego połączenia już nie ma</translation>
    </message>
    <message>
        <source>the call is still running</source>
        <translation>połączenie jeszcze trwa</translation>
    </message>
    <message>
        <source>there is no such rule</source>
        <translation>nie ma takiej reguły</translation>
    </message>
    <message>
        <source>the network knows no such tariff</source>
        <translation>sieć nie zna takiej taryfy</translation>
    </message>
    <message>
        <source>the telephone cannot do this</source>
        <translation>telefon tego nie potrafi</translation>
    </message>
    <message>
        <source>the call log cannot be written</source>
        <translation>nie można zapisać rejestru połączeń</translation>
    </message>
    <message>
        <source>another process records the calls</source>
        <translation>połączenia rejestruje inny proces</translation>
    </message>
    <message>
        <source>Not done: %1.</source>
        <translation>Nie wykonano: %1.</translation>
    </message>
    <message>
        <source>Not done: the telephone answers %1.</source>
        <translation>Nie wykonano: telefon odpowiada %1.</translation>
    </message>
    <message>
        <source>a value is out of range</source>
        <translation>wartość jest poza zakresem</translation>
    </message>
    <message>
        <source>it is not possible now</source>
        <translation>teraz to niemożliwe</translation>
    </message>
    <message>
        <source>the SIM or the network does not allow it</source>
        <translation>karta SIM albo sieć na to nie pozwala</translation>
    </message>
</context>
<context>
    <name>host::TariffSection</name>
    <message>
        <source>Free</source>
        <translation>Bezpłatne</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Jednostki</translation>
    </message>
    <message>
        <source>for each</source>
        <translation>za każde</translation>
    </message>
    <message>
        <source>at the start</source>
        <translation>na początku</translation>
    </message>
    <message>
        <source>Dialed calls</source>
        <translation>Wybierane</translation>
    </message>
    <message>
        <source>Answered calls</source>
        <translation>Odebrane</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Tariff</source>
        <translation>Taryfa</translation>
    </message>
    <message>
        <source>Why the tariff was not set</source>
        <translation>Dlaczego taryfy nie ustawiono</translation>
    </message>
    <message>
        <source>%1 are free</source>
        <translation>%1: bezpłatne</translation>
    </message>
    <message>
        <source>Nothing is charged for them</source>
        <translation>Nic się za nie nie nalicza</translation>
    </message>
    <message>
        <source>Units for each interval</source>
        <translation>Jednostki za okres</translation>
    </message>
    <message>
        <source>Interval in seconds</source>
        <translation>Okres w sekundach</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Units when the call is connected</source>
        <translation>Jednostki przy nawiązaniu połączenia</translation>
    </message>
</context>
<context>
    <name>host::WaitNotice</name>
    <message>
        <source>Please wait ...</source>
        <translation>Proszę czekać ...</translation>
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
Kody wyjścia:
  0  program zakończył sygnał, a to, co trwało, jest zapisane
  2  wiersz poleceń jest błędny
  3  nie ma magistrali systemowej albo nie można otworzyć telefonu
</translation>
    </message>
    <message>
        <source>See kavcallrecorder --help.</source>
        <translation>Zobacz kavcallrecorder --help.</translation>
    </message>
    <message>
        <source>Records the calls and data connections of a modem while no window is open.</source>
        <translation>Rejestruje połączenia i sesje danych modemu, gdy żadne okno nie jest otwarte.</translation>
    </message>
    <message>
        <source>The telephone: %1, the path of a library that has one, or auto: the first over which a modem is there, now or later. Default: auto.</source>
        <translation>Telefon: %1, ścieżka biblioteki, która go zawiera, albo auto: pierwszy, przez który dostępny jest modem, teraz lub później. Domyślnie: auto.</translation>
    </message>
    <message>
        <source>Record in DIR. Default: %1</source>
        <translation>Rejestruje w DIR. Domyślnie: %1</translation>
    </message>
    <message>
        <source>Keep the calls of the last DAYS days, 0 to 100000; older ones are deleted when recording begins and once a day, and stay in the totals. Default: all are kept.</source>
        <translation>Zachowuje połączenia z ostatnich DAYS dni, od 0 do 100000; starsze są usuwane na początku rejestrowania i raz dziennie, ale pozostają w sumach. Domyślnie: zachowywane są wszystkie.</translation>
    </message>
    <message>
        <source>%1; it is looked for.</source>
        <translation>%1; trwa szukanie.</translation>
    </message>
    <message>
        <source>Option 'keep-calls' wants a number of days, 0 to %1.</source>
        <translation>Opcja „keep-calls” wymaga liczby dni od 0 do %1.</translation>
    </message>
    <message>
        <source>There is a value missing or too many.</source>
        <translation>Brakuje wartości albo jest ich za dużo.</translation>
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
        <translation>Pokazuje liczniki telefonu: czas i koszt połączeń, czas i bajty danych pakietowych.

Polecenia:
  figures [NAME ...]   wszystkie wartości albo tylko te; domyślne
  settings             informacja o opłatach: sposób liczenia kosztów, limit kredytu, cena
  calls                zachowane połączenia
  sessions             zachowane sesje danych
  totals               to, co zachowane, według miesięcy albo --by i --cycle-day
  reset NAME           zeruje: %1
  delete ID|all        usuwa połączenie albo wszystkie zakończone; sumy pozostają
  export FILE          zapisuje cały stan jako JSON; „-” to standardowe wyjście
  import FILE          tworzy z takiego pliku nowy stan

Wartości: %2.</translation>
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
Kody wyjścia:
  0  wszystko się powiodło
  1  telefon odmawia albo nie można odczytać lub zapisać rejestru połączeń
  2  wiersz poleceń jest błędny albo zażądano zmiany bez --yes
  3  nie ma stanu albo nie można otworzyć telefonu
  4  podana wartość nie jest dostępna
  5  limit kredytu jest osiągnięty albo kredyt wyczerpany
  6  wartość z --alert jest osiągnięta
  7  pliku lub wyjścia nie można odczytać lub zapisać albo zawiera błąd
</translation>
    </message>
    <message>
        <source>The telephone's state is in DIR. Default: %1</source>
        <translation>Stan telefonu jest w DIR. Domyślnie: %1</translation>
    </message>
    <message>
        <source>The telephone: %1, or the path of a library that has one. Default: simulated.</source>
        <translation>Telefon: %1 albo ścieżka biblioteki, która go zawiera. Domyślnie: simulated.</translation>
    </message>
    <message>
        <source>Speak this language: %1. Default: the locale's. JSON and CSV are the same in each.</source>
        <translation>Język: %1. Domyślnie: zgodny z ustawieniami regionalnymi. JSON i CSV są w każdym takie same.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>Wypisuje JSON.</translation>
    </message>
    <message>
        <source>Print comma-separated values.</source>
        <translation>Wypisuje wartości rozdzielone przecinkami.</translation>
    </message>
    <message>
        <source>Reset or delete indeed; nothing is asked.</source>
        <translation>Naprawdę zeruje lub usuwa; bez pytania.</translation>
    </message>
    <message>
        <source>Print anew whenever something changes, until a signal comes.</source>
        <translation>Wypisuje od nowa po każdej zmianie, aż nadejdzie sygnał.</translation>
    </message>
    <message>
        <source>Totals by day, month or cycle.</source>
        <translation>Sumy według dnia, miesiąca lub cyklu (day, month, cycle).</translation>
    </message>
    <message>
        <source>The billing cycle begins on day N, 1 to 28; totals by cycle.</source>
        <translation>Okres rozliczeniowy zaczyna się dnia N, od 1 do 28; sumy według cyklu.</translation>
    </message>
    <message>
        <source>With delete all: keep the calls of the last DAYS days.</source>
        <translation>Z delete all: zachowuje połączenia z ostatnich DAYS dni.</translation>
    </message>
    <message>
        <source>COST N, TIME N or BYTES N: exit code 6 where all calls have cost N or more, lasted N seconds or more, or N bytes or more have gone both ways.</source>
        <translation>COST N, TIME N lub BYTES N: kod wyjścia 6, gdy wszystkie połączenia kosztowały N lub więcej, trwały N sekund lub dłużej albo w obu kierunkach przesłano N bajtów lub więcej.</translation>
    </message>
    <message>
        <source>What to do.</source>
        <translation>Co zrobić.</translation>
    </message>
    <message>
        <source>Option 'alert' wants COST, TIME or BYTES, and a number.</source>
        <translation>Opcja „alert” wymaga COST, TIME lub BYTES oraz liczby.</translation>
    </message>
    <message>
        <source>Option 'by' wants day, month or cycle.</source>
        <translation>Opcja „by” wymaga day, month lub cycle.</translation>
    </message>
    <message>
        <source>Option 'cycle-day' wants a day from 1 to 28.</source>
        <translation>Opcja „cycle-day” wymaga dnia od 1 do 28.</translation>
    </message>
    <message>
        <source>Option 'cycle-day' goes with --by cycle.</source>
        <translation>Opcja „cycle-day” działa z --by cycle.</translation>
    </message>
    <message>
        <source>Option 'keep-calls' wants a number of days.</source>
        <translation>Opcja „keep-calls” wymaga liczby dni.</translation>
    </message>
    <message>
        <source>Option 'keep-calls' goes with delete all.</source>
        <translation>Opcja „keep-calls” działa z delete all.</translation>
    </message>
    <message>
        <source>There is no command '%1'.</source>
        <translation>Nie ma polecenia „%1”.</translation>
    </message>
    <message>
        <source>The command '%1' has a word missing or too many.</source>
        <translation>W poleceniu „%1” brakuje słowa albo jest ich za dużo.</translation>
    </message>
    <message>
        <source>There is no '%1' to show or to reset.</source>
        <translation>Nie ma „%1” do pokazania ani wyzerowania.</translation>
    </message>
    <message>
        <source>Options 'watch' and 'alert' go with figures.</source>
        <translation>Opcje „watch” i „alert” działają z figures.</translation>
    </message>
    <message>
        <source>Nothing was changed: '%1' wants --yes.</source>
        <translation>Nic nie zmieniono: „%1” wymaga --yes.</translation>
    </message>
    <message>
        <source>Options 'state' and 'backend' want a value.</source>
        <translation>Opcje „state” i „backend” wymagają wartości.</translation>
    </message>
    <message>
        <source>Unknown language '%1'; there is: %2.</source>
        <translation>Nieznany język „%1”; dostępne: %2.</translation>
    </message>
    <message>
        <source>Options 'json' and 'csv' do not go together.</source>
        <translation>Opcji „json” i „csv” nie można łączyć.</translation>
    </message>
    <message>
        <source>units</source>
        <translation>jednostki</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>bajty</translation>
    </message>
    <message>
        <source>currency</source>
        <translation>waluta</translation>
    </message>
    <message>
        <source>on</source>
        <translation>włączony</translation>
    </message>
    <message>
        <source>off</source>
        <translation>wyłączony</translation>
    </message>
    <message>
        <source>The output cannot be written.</source>
        <translation>Nie można zapisać wyjścia.</translation>
    </message>
    <message>
        <source>There is no state in "%1".</source>
        <translation>W „%1” nie ma stanu.</translation>
    </message>
    <message>
        <source>The figure of the alert is not available.</source>
        <translation>Wartość dla alarmu nie jest dostępna.</translation>
    </message>
    <message>
        <source>The call log cannot be read.</source>
        <translation>Nie można odczytać rejestru połączeń.</translation>
    </message>
    <message>
        <source>Nothing was changed: %1 %2: %3.</source>
        <translation>Nic nie zmieniono: %1 %2: %3.</translation>
    </message>
    <message>
        <source>delete wants the id of a call, or all.</source>
        <translation>delete wymaga identyfikatora połączenia albo all.</translation>
    </message>
    <message>
        <source>See kavmeter --help.</source>
        <translation>Zobacz kavmeter --help.</translation>
    </message>
    <message>
        <source>running</source>
        <translation>trwa</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>zakończone</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>niepołączone</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>przerwane</translation>
    </message>
    <message>
        <source>data</source>
        <translation>dane</translation>
    </message>
    <message>
        <source>voice</source>
        <translation>głos</translation>
    </message>
    <message>
        <source>dialed</source>
        <translation>wybrane</translation>
    </message>
    <message>
        <source>answered</source>
        <translation>odebrane</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>niedostępne</translation>
    </message>
    <message>
        <source>is no whole number</source>
        <translation>nie jest liczbą całkowitą</translation>
    </message>
    <message>
        <source>is no text</source>
        <translation>nie jest tekstem</translation>
    </message>
    <message>
        <source>has no pairs of hexadecimal digits</source>
        <translation>nie składa się z par cyfr szesnastkowych</translation>
    </message>
    <message>
        <source>%1.%2 is missing</source>
        <translation>brakuje %1.%2</translation>
    </message>
    <message>
        <source>%1.%2 is not known</source>
        <translation>%1.%2 nie jest znane</translation>
    </message>
    <message>
        <source>kept[%1].content cannot be read</source>
        <translation>nie można odczytać kept[%1].content</translation>
    </message>
    <message>
        <source>format is not "%1"</source>
        <translation>format nie jest „%1”</translation>
    </message>
    <message>
        <source>version is not %1</source>
        <translation>version nie jest %1</translation>
    </message>
    <message>
        <source>%1 is no list</source>
        <translation>%1 nie jest listą</translation>
    </message>
    <message>
        <source>%1 is no row</source>
        <translation>%1 nie jest wierszem</translation>
    </message>
    <message>
        <source>%1[%2] is not possible</source>
        <translation>%1[%2] nie jest możliwe</translation>
    </message>
    <message>
        <source>its totals contradict its rows</source>
        <translation>sumy są sprzeczne z wierszami</translation>
    </message>
    <message>
        <source>"%1" cannot be made: %2.</source>
        <translation>Nie można utworzyć „%1”: %2.</translation>
    </message>
    <message>
        <source>"%1" cannot be written: %2.</source>
        <translation>Nie można zapisać „%1”: %2.</translation>
    </message>
    <message>
        <source>"%1" cannot be read: %2.</source>
        <translation>Nie można odczytać „%1”: %2.</translation>
    </message>
    <message>
        <source>"%1", line %2: %3.</source>
        <translation>„%1”, wiersz %2: %3.</translation>
    </message>
    <message>
        <source>"%1" is not empty: a state is imported into a new directory.</source>
        <translation>„%1” nie jest pusty: stan importuje się do nowego katalogu.</translation>
    </message>
</context>
<context>
    <name>kavrecentcalls</name>
    <message>
        <source>Option '%1' of Qt does not go with option 'tour'.</source>
        <translation>Opcji Qt „%1” nie można łączyć z opcją „tour”.</translation>
    </message>
    <message>
        <source>See kavrecentcalls --help.</source>
        <translation>Zobacz kavrecentcalls --help.</translation>
    </message>
    <message>
        <source>There is no display to show the phone on; --tour DIR needs none.</source>
        <translation>Nie ma ekranu, na którym można pokazać telefon; --tour DIR go nie potrzebuje.</translation>
    </message>
    <message>
        <source>The display "%1" cannot be reached; --tour DIR needs none.</source>
        <translation>Ekran „%1” jest nieosiągalny; --tour DIR go nie potrzebuje.</translation>
    </message>
    <message>
        <source>The trace file "%1" cannot be opened: %2.</source>
        <translation>Nie można otworzyć pliku śladu „%1”: %2.</translation>
    </message>
    <message>
        <source>The script "%1" cannot be read: %2.</source>
        <translation>Nie można odczytać skryptu „%1”: %2.</translation>
    </message>
    <message>
        <source>The photograph "%1" cannot be written.</source>
        <translation>Nie można zapisać fotografii „%1”.</translation>
    </message>
    <message>
        <source>The plug-in gives no screen "%1".</source>
        <translation>Wtyczka nie daje ekranu „%1”.</translation>
    </message>
    <message>
        <source>A new telephone has begun.</source>
        <translation>Nowy telefon jest gotowy.</translation>
    </message>
    <message>
        <source>There is no new telephone, but the one before: %1.</source>
        <translation>Nie ma nowego telefonu, jest poprzedni: %1.</translation>
    </message>
    <message>
        <source>A new telephone has begun. The one before is kept as "%1".</source>
        <translation>Nowy telefon jest gotowy. Poprzedni jest zachowany jako "%1".</translation>
    </message>
    <message>
        <source>Shows the call meters of the phone: a phone with its display and keypad in a window, and beside it a panel
that makes calls on the simulated telephone.</source>
        <translation>Pokazuje liczniki połączeń telefonu: telefon z wyświetlaczem i klawiaturą w oknie, a obok niego panel,
który wykonuje połączenia na symulowanym telefonie.</translation>
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
Kody wyjścia:
  0  wszystko się powiodło
  1  wycieczka zobaczyła coś innego, niż oczekuje jej skrypt
  2  wiersz poleceń jest błędny
  3  nie można otworzyć telefonu
  4  nie można otworzyć pliku śladu
  5  brakuje wtyczki, innej biblioteki lub ich funkcji albo wtyczka nie daje ekranu
  6  skryptu wycieczki nie można odczytać albo zawiera błąd
  7  nie można zapisać fotografii, tekstu wycieczki lub tego, o co proszono
  8  nie można wczytać katalogu tłumaczeń
  9  nie ma ekranu, na którym można pokazać okno, albo takiej platformy Qt
 10  sygnał zakończył wycieczkę przed jej końcem
</translation>
    </message>
    <message>
        <source>Keep the telephone's state in DIR between starts; "none" keeps it in memory. Default: %1</source>
        <translation>Zachowuje stan telefonu w DIR między uruchomieniami; „none” trzyma go w pamięci. Domyślnie: %1</translation>
    </message>
    <message>
        <source>Append the traces to FILE; "-" is standard output. Default: trace.log in the state directory; no trace where the state is in memory, and on a tour.</source>
        <translation>Dopisuje ślad do FILE; „-” to standardowe wyjście. Domyślnie: trace.log w katalogu stanu; bez śladu, gdy stan jest w pamięci, i podczas wycieczki.</translation>
    </message>
    <message>
        <source>The telephone behind: %2, the path of a library that has one, or auto: the first that has a modem, else simulated. Default: simulated.</source>
        <translation>Telefon w tle: %2, ścieżka biblioteki, która go zawiera, albo auto: pierwszy, który ma modem, w przeciwnym razie simulated. Domyślnie: simulated.</translation>
    </message>
    <message>
        <source>Keep the calls of the last DAYS days, 0 to 100000; older ones are deleted at the start and once a day, and stay in the totals. Default: all are kept.</source>
        <translation>Zachowuje połączenia z ostatnich DAYS dni, od 0 do 100000; starsze są usuwane przy uruchomieniu i raz dziennie, ale pozostają w sumach. Domyślnie: zachowywane są wszystkie.</translation>
    </message>
    <message>
        <source>The plug-in library. Default: libkavcallmeter.so.1</source>
        <translation>Biblioteka wtyczki. Domyślnie: libkavcallmeter.so.1</translation>
    </message>
    <message>
        <source>Open this screen at once: %3.</source>
        <translation>Otwiera od razu ten ekran: %3.</translation>
    </message>
    <message>
        <source>Show this page of the panel: %4.</source>
        <translation>Pokazuje tę stronę panelu: %4.</translation>
    </message>
    <message>
        <source>Show the phone's display alone, as large as the window and worked by touch: for a window that is a phone's.</source>
        <translation>Pokaż sam wyświetlacz telefonu, tak duży jak okno i obsługiwany dotykiem: dla okna na telefonie.</translation>
    </message>
    <message>
        <source>Load the texts of the catalogue FILE (.qm).</source>
        <translation>Wczytuje teksty z katalogu FILE (.qm).</translation>
    </message>
    <message>
        <source>Speak this language: %5. Default: the locale's; English on a tour and with --photo.</source>
        <translation>Język: %5. Domyślnie: zgodny z ustawieniami regionalnymi; podczas wycieczki i z --photo angielski.</translation>
    </message>
    <message>
        <source>The colours: light or dark. Default: the desktop's; light on a tour and with --photo.</source>
        <translation>Kolory: light (jasne) lub dark (ciemne). Domyślnie: kolory pulpitu; light podczas zwiedzania i z --photo.</translation>
    </message>
    <message>
        <source>Photograph the window as PNG to FILE and end.</source>
        <translation>Fotografuje okno jako PNG do FILE i kończy.</translation>
    </message>
    <message>
        <source>Play a tour without a display: put photographs of the screens into DIR and print their texts.</source>
        <translation>Odbywa wycieczkę bez ekranu: zapisuje fotografie ekranów w DIR i wypisuje ich teksty.</translation>
    </message>
    <message>
        <source>Play this script instead of the tour of all screens; only with --tour.</source>
        <translation>Wykonuje ten skrypt zamiast wycieczki po wszystkich ekranach; tylko z --tour.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Wyświetla tę pomoc.</translation>
    </message>
    <message>
        <source>Option '%1' has an empty value.</source>
        <translation>Opcja „%1” ma pustą wartość.</translation>
    </message>
    <message>
        <source>The name that option '%1' gives is not UTF-8.</source>
        <translation>Nazwa podana w opcji „%1” nie jest w UTF-8.</translation>
    </message>
    <message>
        <source>Unknown screen '%1'; there is: %2.</source>
        <translation>Nieznany ekran „%1”; dostępne: %2.</translation>
    </message>
    <message>
        <source>Unknown page '%1'; there is: %2.</source>
        <translation>Nieznana strona „%1”; dostępne: %2.</translation>
    </message>
    <message>
        <source>Unknown language '%1'; there is: %2.</source>
        <translation>Nieznany język „%1”; dostępne: %2.</translation>
    </message>
    <message>
        <source>Unknown skin '%1'; there is: %2.</source>
        <translation>Nieznany motyw „%1”; dostępne: %2.</translation>
    </message>
    <message>
        <source>Unexpected argument '%1'.</source>
        <translation>Nieoczekiwany argument „%1”.</translation>
    </message>
    <message>
        <source>Option 'script' needs option 'tour'.</source>
        <translation>Opcja „script” wymaga opcji „tour”.</translation>
    </message>
    <message>
        <source>Option 'keep-calls' wants a number of days, 0 to %1.</source>
        <translation>Opcja „keep-calls” wymaga liczby dni od 0 do %1.</translation>
    </message>
    <message>
        <source>Option '%1' does not go with option 'tour'.</source>
        <translation>Opcji „%1” nie można łączyć z opcją „tour”.</translation>
    </message>
    <message>
        <source>Option 'page' does not go with option 'display'.</source>
        <translation>Opcja „page” nie łączy się z opcją „display”.</translation>
    </message>
    <message>
        <source>Option 'language' does not go with option 'translation'.</source>
        <translation>Opcji „language” nie można łączyć z opcją „translation”.</translation>
    </message>
</context>
</TS>
