<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>PHONE_UI_RecentCallCostSetupView</name>
    <message>
        <source>TXT_RID_SETTING_A_CREDIT_LIMIT</source>
        <comment>Credit Limit</comment>
        <translation>Plafond de crédit</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CURRENCY_TYPE</source>
        <comment>Currency Type</comment>
        <translation>Type de devise</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>All costs have been reset to 0.00 units.</comment>
        <translation>Tous les coûts ont été remis à 0.00 unité.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ALL_CALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>All call costs have been reset to 0.00 units.</comment>
        <translation>Les coûts de tous les appels ont été remis à 0.00 unité.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_DIALED_CALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>Dialed call costs have been reset to 0.00 units.</comment>
        <translation>Les coûts des appels émis ont été remis à 0.00 unité.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ANSWERED_CALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>Answered call costs have been reset to 0.00 units.</comment>
        <translation>Les coûts des appels reçus ont été remis à 0.00 unité.</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_B_ON</source>
        <comment>On</comment>
        <translation>Activé</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_B_OFF</source>
        <comment>Off</comment>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ON</source>
        <comment>On</comment>
        <translation>Activé</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_OFF</source>
        <comment>Off</comment>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CUSTOM</source>
        <comment>Custom</comment>
        <translation>Autre</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_SAVE</source>
        <comment>Save</comment>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_RESET_CALLS</source>
        <comment>Reset Calls</comment>
        <translation>Remise à zéro</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CURRENCY</source>
        <comment>Currency</comment>
        <translation>Devise</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CHOOSE_TYPE</source>
        <comment>Choose Type</comment>
        <translation>Choisir la devise</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CURRENCY_TYPE</source>
        <comment>Currency Type</comment>
        <translation>Devise</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_COST_PER_MINUTE</source>
        <comment>Cost Per Minute</comment>
        <translation>Prix par minute</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ADJUST_CREDIT_LIMIT</source>
        <comment>Adjust Credit Limit</comment>
        <translation>Régler le plafond</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_COST_SETUP</source>
        <comment>Call-Cost Setup</comment>
        <translation>Réglage des coûts</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Retour</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UNITED_ARAB_EMIRATES_DIRHAM_AED</source>
        <comment>UNITED ARAB EMIRATES  DIRHAM  (AED)</comment>
        <translation>Émirats arabes unis : dirham (AED)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AFGHANISTAN_AFGHANI_AFA</source>
        <comment>AFGHANISTAN  AFGHANI  (AFA)</comment>
        <translation>Afghanistan : afghani (AFA)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ALBANIA_LEK_ALL</source>
        <comment>ALBANIA  LEK  (ALL)</comment>
        <translation>Albanie : lek (ALL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ARMENIA_DRAM_AMD</source>
        <comment>ARMENIA  DRAM  (AMD)</comment>
        <translation>Arménie : dram (AMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NETHERLANDS_ANTILLES_GUILDER_ANG</source>
        <comment>NETHERLANDS ANTILLES  GUILDER  (ANG)</comment>
        <translation>Antilles néerlandaises : florin (ANG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ANGOLA_NEW_KWANZA_AON</source>
        <comment>ANGOLA  NEW KWANZA  (AON)</comment>
        <translation>Angola : nouveau kwanza (AON)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ARGENTINA_PESO_ARS</source>
        <comment>ARGENTINA  PESO  (ARS)</comment>
        <translation>Argentine : peso (ARS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AUSTRIA_SCHILLING_ATS</source>
        <comment>AUSTRIA  SCHILLING  (ATS)</comment>
        <translation>Autriche : schilling (ATS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AUSTRALIA_KIRIBATI_DOLLAR_AUD</source>
        <comment>AUSTRALIA KIRIBATI  DOLLAR  (AUD)</comment>
        <translation>Australie, Kiribati : dollar (AUD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ARUBA_FLORIN_AWG</source>
        <comment>ARUBA  FLORIN  (AWG)</comment>
        <translation>Aruba : florin (AWG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AZERBAIJAN_MANAT_AZM</source>
        <comment>AZERBAIJAN  MANAT  (AZM)</comment>
        <translation>Azerbaïdjan : manat (AZM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BARBADOS_DOLLAR_BBD</source>
        <comment>BARBADOS  DOLLAR  (BBD)</comment>
        <translation>Barbade : dollar (BBD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BANGLADESH_TAKA_BDT</source>
        <comment>BANGLADESH  TAKA  (BDT)</comment>
        <translation>Bangladesh : taka (BDT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BELGIUM_FRANC_BEF</source>
        <comment>BELGIUM  FRANC  (BEF)</comment>
        <translation>Belgique : franc (BEF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BULGARIA_LEW_BGN</source>
        <comment>BULGARIA  LEW  (BGN)</comment>
        <translation>Bulgarie : lev (BGN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BAHRAIN_DINAR_BHD</source>
        <comment>BAHRAIN  DINAR  (BHD)</comment>
        <translation>Bahreïn : dinar (BHD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BURUNDI_FRANC_BIF</source>
        <comment>BURUNDI  FRANC  (BIF)</comment>
        <translation>Burundi : franc (BIF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BERMUDA_DOLLAR_BMD</source>
        <comment>BERMUDA  DOLLAR  (BMD)</comment>
        <translation>Bermudes : dollar (BMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BRUNEI_DOLLAR_BND</source>
        <comment>BRUNEI  DOLLAR  (BND)</comment>
        <translation>Brunei : dollar (BND)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BOLIVIA_BOLIVIANO_BOB</source>
        <comment>BOLIVIA  BOLIVIANO  (BOB)</comment>
        <translation>Bolivie : boliviano (BOB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BRAZIL_REAL_BRL</source>
        <comment>BRAZIL  REAL  (BRL)</comment>
        <translation>Brésil : réal (BRL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BAHAMAS_DOLLAR_BSD</source>
        <comment>BAHAMAS  DOLLAR  (BSD)</comment>
        <translation>Bahamas : dollar (BSD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BHUTAN_NGULTRUM_BTN</source>
        <comment>BHUTAN  NGULTRUM  (BTN)</comment>
        <translation>Bhoutan : ngultrum (BTN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BOTSWANA_PULA_BWP</source>
        <comment>BOTSWANA  PULA  (BWP)</comment>
        <translation>Botswana : pula (BWP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BELORUS_ROUBLE_BYR</source>
        <comment>BELORUS  ROUBLE  (BYR)</comment>
        <translation>Biélorussie : rouble (BYR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BELIZE_DOLLAR_BZD</source>
        <comment>BELIZE  DOLLAR  (BZD)</comment>
        <translation>Belize : dollar (BZD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CANADA_DOLLAR_CAD</source>
        <comment>CANADA  DOLLAR  (CAD)</comment>
        <translation>Canada : dollar (CAD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SWITZERLAND_LIECHTENSTEIN_FRANC_CHF</source>
        <comment>SWITZERLAND; LIECHTENSTEIN  FRANC  (CHF)</comment>
        <translation>Suisse, Liechtenstein : franc (CHF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CHILE_PESO_CLP</source>
        <comment>CHILE  PESO  (CLP)</comment>
        <translation>Chili : peso (CLP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CHINA_RENMINBI_YUAN_CNY</source>
        <comment>CHINA  RENMINBI ¥UAN  (CNY)</comment>
        <translation>Chine : yuan renminbi (CNY)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_COLUMBIA_PESO_COP</source>
        <comment>COLUMBIA  PESO  (COP)</comment>
        <translation>Colombie : peso (COP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_COSTA_RICA_COLON_CRC</source>
        <comment>COSTA RICA  COLÓN  (CRC)</comment>
        <translation>Costa Rica : colón (CRC)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CUBA_PESO_CUP</source>
        <comment>CUBA  PESO  (CUP)</comment>
        <translation>Cuba : peso (CUP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CAPE_VERDE_ESCUDO_CVE</source>
        <comment>CAPE VERDE  ESCUDO  (CVE)</comment>
        <translation>Cap-Vert : escudo (CVE)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CYPRUS_POUND_CYP</source>
        <comment>CYPRUS  POUND  (CYP)</comment>
        <translation>Chypre : livre (CYP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CZECH_REPUBLIC_KRONER_CZK</source>
        <comment>CZECH REPUBLIC  KRONER  (CZK)</comment>
        <translation>République tchèque : couronne (CZK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GERMANY_MARK_DEM</source>
        <comment>GERMANY  MARK  (DEM)</comment>
        <translation>Allemagne : mark (DEM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DJIBUTI_FRANC_DJF</source>
        <comment>DJIBUTI  FRANC  (DJF)</comment>
        <translation>Djibouti : franc (DJF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DENMARK_KRONE_DKK</source>
        <comment>DENMARK  KRONE  (DKK)</comment>
        <translation>Danemark : couronne (DKK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DOMINICAN_REPUBLIC_PESO_DOP</source>
        <comment>DOMINICAN REPUBLIC  PESO  (DOP)</comment>
        <translation>République dominicaine : peso (DOP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ALGERIA_DINAR_DZD</source>
        <comment>ALGERIA  DINAR  (DZD)</comment>
        <translation>Algérie : dinar (DZD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ECUADOR_SUCRE_ECS</source>
        <comment>ECUADOR  SUCRE  (ECS)</comment>
        <translation>Équateur : sucre (ECS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ESTONIA_KROON_EEK</source>
        <comment>ESTONIA  KROON  (EEK)</comment>
        <translation>Estonie : couronne (EEK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EGYPT_POUND_EGP</source>
        <comment>EGYPT  POUND  (EGP)</comment>
        <translation>Égypte : livre (EGP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SPAIN_ANDORRA_PESETA_ESP</source>
        <comment>SPAIN ANDORRA  PESETA  (ESP)</comment>
        <translation>Espagne, Andorre : peseta (ESP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ETHIOPIA_BIRR_ETB</source>
        <comment>ETHIOPIA  BIRR  (ETB)</comment>
        <translation>Éthiopie : birr (ETB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FINLAND_MARK_FIM</source>
        <comment>FINLAND  MARK  (FIM)</comment>
        <translation>Finlande : mark (FIM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FIJI_DOLLAR_FJD</source>
        <comment>FIJI  DOLLAR  (FJD)</comment>
        <translation>Fidji : dollar (FJD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FALKLAND_ISLES_POUND_FKP</source>
        <comment>FALKLAND ISLES  POUND  (FKP)</comment>
        <translation>Îles Malouines : livre (FKP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FRANCE_FRANC_FRF</source>
        <comment>FRANCE  FRANC  (FRF)</comment>
        <translation>France : franc (FRF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UNITED_KINGDOM_GREAT_BRITAIN_POUND_STERLING_GBP</source>
        <comment>UNITED KINGDOM (GREAT BRITAIN)  POUND STERLING  (GBP)</comment>
        <translation>Royaume-Uni : livre sterling (GBP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GEORGIA_COUPON_GEK</source>
        <comment>GEORGIA  COUPON  (GEK)</comment>
        <translation>Géorgie : coupon (GEK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GHANA_CEDI_GHC</source>
        <comment>GHANA  CEDI  (GHC)</comment>
        <translation>Ghana : cédi (GHC)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GIBRALTAR_POUND_GIP</source>
        <comment>GIBRALTAR  POUND  (GIP)</comment>
        <translation>Gibraltar : livre (GIP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GAMBIA_DALASI_GMD</source>
        <comment>GAMBIA  DALASI  (GMD)</comment>
        <translation>Gambie : dalasi (GMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUINEA_FRANC_GNF</source>
        <comment>GUINEA  FRANC  (GNF)</comment>
        <translation>Guinée : franc (GNF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GREECE_DRACHMA_GRD</source>
        <comment>GREECE  DRACHMA  (GRD)</comment>
        <translation>Grèce : drachme (GRD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUATEMALA_QUETZAL_GTQ</source>
        <comment>GUATEMALA  QUETZAL  (GTQ)</comment>
        <translation>Guatemala : quetzal (GTQ)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUINEA_BISSAU_PESO_GWP</source>
        <comment>GUINEA-BISSAU  PESO  (GWP)</comment>
        <translation>Guinée-Bissau : peso (GWP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUYANA_DOLLAR_GYD</source>
        <comment>GUYANA  DOLLAR  (GYD)</comment>
        <translation>Guyana : dollar (GYD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HONG_KONG_DOLLAR_HKD</source>
        <comment>HONG KONG  DOLLAR  (HKD)</comment>
        <translation>Hong Kong : dollar (HKD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HONDURAS_LEMPIRA_HNL</source>
        <comment>HONDURAS  LEMPIRA  (HNL)</comment>
        <translation>Honduras : lempira (HNL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CROATIA_KUNA_HRK</source>
        <comment>CROATIA  KUNA  (HRK)</comment>
        <translation>Croatie : kuna (HRK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HAITI_GOURDE_HTG</source>
        <comment>HAITI  GOURDE  (HTG)</comment>
        <translation>Haïti : gourde (HTG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HUNGARY_FORINT_HUF</source>
        <comment>HUNGARY  FORINT  (HUF)</comment>
        <translation>Hongrie : forint (HUF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_INDONESIA_RUPIAH_IDR</source>
        <comment>INDONESIA  RUPIAH  (IDR)</comment>
        <translation>Indonésie : roupie (IDR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IRELAND_PUNT_IEP</source>
        <comment>IRELAND  PUNT  (IEP)</comment>
        <translation>Irlande : livre (IEP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ISRAEL_NEW_SHEKEL_ILS</source>
        <comment>ISRAEL  NEW SHEKEL  (ILS)</comment>
        <translation>Israël : nouveau shekel (ILS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_INDIA_BHUTAN_RUPEE_INR</source>
        <comment>INDIA; BHUTAN  RUPEE  (INR)</comment>
        <translation>Inde, Bhoutan : roupie (INR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IRAQ_DINAR_IQD</source>
        <comment>IRAQ  DINAR  (IQD)</comment>
        <translation>Irak : dinar (IQD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IRAN_RIAL_IRR</source>
        <comment>IRAN  RIAL  (IRR)</comment>
        <translation>Iran : rial (IRR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ICELAND_KRONER_ISK</source>
        <comment>ICELAND  KRONER  (ISK)</comment>
        <translation>Islande : couronne (ISK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ITALY_LIRA_ITL</source>
        <comment>ITALY  LIRA  (ITL)</comment>
        <translation>Italie : livre (ITL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JAMAICA_DOLLAR_JMD</source>
        <comment>JAMAICA  DOLLAR  (JMD)</comment>
        <translation>Jamaïque : dollar (JMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JORDAN_DINAR_JOD</source>
        <comment>JORDAN  DINAR  (JOD)</comment>
        <translation>Jordanie : dinar (JOD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JAPAN_YEN_JPY</source>
        <comment>JAPAN  YEN  (JPY)</comment>
        <translation>Japon : yen (JPY)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KENYA_SHILLING_KES</source>
        <comment>KENYA  SHILLING  (KES)</comment>
        <translation>Kenya : shilling (KES)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KIRGIZISTAN_SOM_KGS</source>
        <comment>KIRGIZISTAN  SOM  (KGS)</comment>
        <translation>Kirghizistan : som (KGS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CAMBODIA_RIEL_KHR</source>
        <comment>CAMBODIA  RIEL  (KHR)</comment>
        <translation>Cambodge : riel (KHR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_COMORES_FRANC_KMF</source>
        <comment>COMORES  FRANC  (KMF)</comment>
        <translation>Comores : franc (KMF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KOREA_DEMOCRATIC_PEOPLES_REPUBLIC_WON_KPW</source>
        <comment>KOREA, DEMOCRATIC PEOPLE'S REPUBLIC  WON  (KPW)</comment>
        <translation>Corée du Nord : won (KPW)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KOREA_REPUBLIC_SOUTH_KOREA_WON_KRW</source>
        <comment>KOREA, REPUBLIC (SOUTH KOREA)  WON  (KRW)</comment>
        <translation>Corée du Sud : won (KRW)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KUWAIT_DINAR_KWD</source>
        <comment>KUWAIT  DINAR  (KWD)</comment>
        <translation>Koweït : dinar (KWD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CAYMAN_ISLANDS_DOLLAR_KYD</source>
        <comment>CAYMAN ISLANDS  DOLLAR  (KYD)</comment>
        <translation>Îles Caïmans : dollar (KYD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KAZAKHSTAN_TENGE_KZT</source>
        <comment>KAZAKHSTAN  TENGE  (KZT)</comment>
        <translation>Kazakhstan : tenge (KZT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LAOS_KIP_LAK</source>
        <comment>LAOS  KIP  (LAK)</comment>
        <translation>Laos : kip (LAK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LEBANON_POUND_LBP</source>
        <comment>LEBANON  POUND  (LBP)</comment>
        <translation>Liban : livre (LBP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SRI_LANKA_RUPEE_LKR</source>
        <comment>SRI LANKA  RUPEE  (LKR)</comment>
        <translation>Sri Lanka : roupie (LKR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LIBERIA_DOLLAR_LRD</source>
        <comment>LIBERIA  DOLLAR  (LRD)</comment>
        <translation>Libéria : dollar (LRD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LESOTHO_LOTI_PL_MALOTI_LSL</source>
        <comment>LESOTHO  LOTI (Pl.: MALOTI)  (LSL)</comment>
        <translation>Lesotho : loti (LSL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LITHUANIA_LITAS_LTL</source>
        <comment>LITHUANIA  LITAS  (LTL)</comment>
        <translation>Lituanie : litas (LTL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LUXEMBOURG_FRANC_LUF</source>
        <comment>LUXEMBOURG  FRANC  (LUF)</comment>
        <translation>Luxembourg : franc (LUF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LATVIA_LAT_LVL</source>
        <comment>LATVIA  LAT  (LVL)</comment>
        <translation>Lettonie : lats (LVL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LIBYA_DINAR_LYD</source>
        <comment>LIBYA  DINAR  (LYD)</comment>
        <translation>Libye : dinar (LYD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MAROC_DIRHAM_MAD</source>
        <comment>MAROC  DIRHAM  (MAD)</comment>
        <translation>Maroc : dirham (MAD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MOLDAVIA_LEU_MDL</source>
        <comment>MOLDAVIA  LEU  (MDL)</comment>
        <translation>Moldavie : leu (MDL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MADAGASCAR_FRANC_MGF</source>
        <comment>MADAGASCAR  FRANC  (MGF)</comment>
        <translation>Madagascar : franc (MGF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MACEDONIA_DENAR_MKD</source>
        <comment>MACEDONIA  DENAR  (MKD)</comment>
        <translation>Macédoine : denar (MKD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MYANMAR_KYAT_MMK</source>
        <comment>MYANMAR  KYAT  (MMK)</comment>
        <translation>Myanmar : kyat (MMK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MONGOLIA_TUGRIK_MNT</source>
        <comment>MONGOLIA  TUGRIK  (MNT)</comment>
        <translation>Mongolie : tugrik (MNT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MACAU_PATACA_MOP</source>
        <comment>MACAU  PATACA  (MOP)</comment>
        <translation>Macao : pataca (MOP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MAURETANIA_OUGUIYA_MRO</source>
        <comment>MAURETANIA  OUGUIYA  (MRO)</comment>
        <translation>Mauritanie : ouguiya (MRO)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALTA_LIRA_MTL</source>
        <comment>MALTA  LIRA  (MTL)</comment>
        <translation>Malte : livre (MTL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MAURITIUS_RUPEE_MUR</source>
        <comment>MAURITIUS  RUPEE  (MUR)</comment>
        <translation>Maurice : roupie (MUR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALDIVE_ISLES_RUFIYAA_MVR</source>
        <comment>MALDIVE ISLES  RUFIYAA  (MVR)</comment>
        <translation>Maldives : rufiyaa (MVR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALAWI_KWACHA_MWK</source>
        <comment>MALAWI  KWACHA  (MWK)</comment>
        <translation>Malawi : kwacha (MWK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MEXICO_NEW_PESO_MXN</source>
        <comment>MEXICO  NEW PESO  (MXN)</comment>
        <translation>Mexique : nouveau peso (MXN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALAYSIA_RINGGIT_MYR</source>
        <comment>MALAYSIA  RINGGIT  (MYR)</comment>
        <translation>Malaisie : ringgit (MYR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MOZAMBIQUE_METICAL_MZM</source>
        <comment>MOZAMBIQUE  METICAL  (MZM)</comment>
        <translation>Mozambique : metical (MZM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NAMIBIA_DOLLAR_NAD</source>
        <comment>NAMIBIA  DOLLAR  (NAD)</comment>
        <translation>Namibie : dollar (NAD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NIGERIA_NAIRA_NGN</source>
        <comment>NIGERIA  NAIRA  (NGN)</comment>
        <translation>Nigéria : naira (NGN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NICARAGUA_GOLD_CORDOBA_NIO</source>
        <comment>NICARAGUA  GOLD CÓRDOBA  (NIO)</comment>
        <translation>Nicaragua : córdoba or (NIO)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NETHERLANDS_GUILDER_NLG</source>
        <comment>NETHERLANDS  GUILDER  (NLG)</comment>
        <translation>Pays-Bas : florin (NLG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NORWAY_KRONA_NOK</source>
        <comment>NORWAY  KRONA  (NOK)</comment>
        <translation>Norvège : couronne (NOK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NEPAL_RUPEE_NPW</source>
        <comment>NEPAL  RUPEE  (NPW)</comment>
        <translation>Népal : roupie (NPW)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NEW_ZEALAND_DOLLAR_NZD</source>
        <comment>NEW ZEALAND  DOLLAR  (NZD)</comment>
        <translation>Nouvelle-Zélande : dollar (NZD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_OMAN_RIAL_OMR</source>
        <comment>OMAN  RIAL  (OMR)</comment>
        <translation>Oman : rial (OMR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PANAMA_BALBOA_PAB</source>
        <comment>PANAMA  BALBOA  (PAB)</comment>
        <translation>Panama : balboa (PAB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PERU_NEW_SOL_PEN</source>
        <comment>PERU  NEW SOL  (PEN)</comment>
        <translation>Pérou : nouveau sol (PEN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PAPUA_NEW_GUINEA_KINA_PGK</source>
        <comment>PAPUA NEW GUINEA  KINA  (PGK)</comment>
        <translation>Papouasie-Nouvelle-Guinée : kina (PGK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PHILIPPINES_PESO_PHP</source>
        <comment>PHILIPPINES  PESO  (PHP)</comment>
        <translation>Philippines : peso (PHP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PAKISTAN_RUPEE_PYK</source>
        <comment>PAKISTAN  RUPEE  (PYK)</comment>
        <translation>Pakistan : roupie (PYK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_POLAND_ZLOTY_PLN</source>
        <comment>POLAND  ZLOTY  (PLN)</comment>
        <translation>Pologne : zloty (PLN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PORTUGAL_ESCUDO_PTE</source>
        <comment>PORTUGAL  ESCUDO  (PTE)</comment>
        <translation>Portugal : escudo (PTE)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PARAGUAY_GUARANI_PYG</source>
        <comment>PARAGUAY  GUARANI  (PYG)</comment>
        <translation>Paraguay : guarani (PYG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_QATAR_RIYAL_QAR</source>
        <comment>QATAR  RIYAL  (QAR)</comment>
        <translation>Qatar : riyal (QAR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ROMANIA_LEU_ROL</source>
        <comment>ROMANIA  LEU  (ROL)</comment>
        <translation>Roumanie : leu (ROL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_AZERBAIJAN_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION AZERBAIJAN  ROUBLE  (RUB)</comment>
        <translation>Fédération de Russie, Azerbaïdjan : rouble (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_BELARUS_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION BELARUS  ROUBLE  (RUB)</comment>
        <translation>Fédération de Russie, Biélorussie : rouble (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_TADZIKISTAN_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION TADZIKISTAN  ROUBLE  (RUB)</comment>
        <translation>Fédération de Russie, Tadjikistan : rouble (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_UZBEKISTAN_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION UZBEKISTAN  ROUBLE  (RUB)</comment>
        <translation>Fédération de Russie, Ouzbékistan : rouble (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUANDA_FRANC_RWF</source>
        <comment>RUANDA  FRANC  (RWF)</comment>
        <translation>Rwanda : franc (RWF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAUDI_ARABIA_RIYAL_SAR</source>
        <comment>SAUDI ARABIA  RIYAL  (SAR)</comment>
        <translation>Arabie saoudite : riyal (SAR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SALOMON_ISLES_DOLLAR_SBD</source>
        <comment>SALOMON ISLES  DOLLAR  (SBD)</comment>
        <translation>Îles Salomon : dollar (SBD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SEYCHELLES_RUPEE_SCR</source>
        <comment>SEYCHELLES  RUPEE  (SCR)</comment>
        <translation>Seychelles : roupie (SCR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SUDAN_DINAR_SDD</source>
        <comment>SUDAN  DINAR  (SDD)</comment>
        <translation>Soudan : dinar (SDD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SWEDEN_KRONER_SEK</source>
        <comment>SWEDEN  KRONER  (SEK)</comment>
        <translation>Suède : couronne (SEK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SINGAPORE_DOLLAR_SGD</source>
        <comment>SINGAPORE  DOLLAR  (SGD)</comment>
        <translation>Singapour : dollar (SGD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_HELENS_POUND_SHP</source>
        <comment>ST. HELENS  POUND  (SHP)</comment>
        <translation>Sainte-Hélène : livre (SHP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SLOVENIA_TOLAR_SIT</source>
        <comment>SLOVENIA  TOLAR  (SIT)</comment>
        <translation>Slovénie : tolar (SIT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SLOVAKIA_KORUNA_SKK</source>
        <comment>SLOVAKIA  KORUNA  (SKK)</comment>
        <translation>Slovaquie : couronne (SKK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SIERRA_LEONE_LEONE_SLL</source>
        <comment>SIERRA LEONE  LEONE  (SLL)</comment>
        <translation>Sierra Leone : leone (SLL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SOMALIA_SHILLING_SOS</source>
        <comment>SOMALIA  SHILLING  (SOS)</comment>
        <translation>Somalie : shilling (SOS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SURINAM_GUILDER_SRG</source>
        <comment>SURINAM  GUILDER  (SRG)</comment>
        <translation>Suriname : florin (SRG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAO_TOME_PRINCIPE_DOBRA_SRD</source>
        <comment>SÃO TOMÉ; PRINCIPE  DOBRA  (SRD)</comment>
        <translation>São Tomé, Príncipe : dobra (SRD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EL_SALVADOR_COLON_SVC</source>
        <comment>EL SALVADOR  COLÓN  (SVC)</comment>
        <translation>Salvador : colón (SVC)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SYRIA_POUND_SYP</source>
        <comment>SYRIA  POUND  (SYP)</comment>
        <translation>Syrie : livre (SYP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SWAZILAND_LILANGENI_PL_EMALANGENI_SZL</source>
        <comment>SWAZILAND  LILANGENI (Pl.: EMALANGENI)  (SZL)</comment>
        <translation>Swaziland : lilangeni (SZL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_THAILAND_BAHT_THB</source>
        <comment>THAILAND  BAHT  (THB)</comment>
        <translation>Thaïlande : baht (THB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TURKMENISTAN_MANAT_TMM</source>
        <comment>TURKMENISTAN  MANAT  (TMM)</comment>
        <translation>Turkménistan : manat (TMM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TUNESIA_DINAR_TND</source>
        <comment>TUNESIA  DINAR  (TND)</comment>
        <translation>Tunisie : dinar (TND)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TONGA_PAANGA_TOP</source>
        <comment>TONGA  PA'ANGA  (TOP)</comment>
        <translation>Tonga : paʻanga (TOP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TURKEY_LIRA_TRL</source>
        <comment>TURKEY  LIRA  (TRL)</comment>
        <translation>Turquie : livre (TRL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TRINIDAD_TOBAGO_DOLLAR_TTD</source>
        <comment>TRINIDAD; TOBAGO  DOLLAR  (TTD)</comment>
        <translation>Trinité, Tobago : dollar (TTD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TAIWAN_DOLLAR_TWD</source>
        <comment>TAIWAN  DOLLAR  (TWD)</comment>
        <translation>Taïwan : dollar (TWD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TANZANIA_SHILLING_TZS</source>
        <comment>TANZANIA  SHILLING  (TZS)</comment>
        <translation>Tanzanie : shilling (TZS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UKRAINE_HRYVNIA_UAH</source>
        <comment>UKRAINE  HRYVNIA  (UAH)</comment>
        <translation>Ukraine : hryvnia (UAH)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UGANDA_SHILLING_UGX</source>
        <comment>UGANDA  SHILLING  (UGX)</comment>
        <translation>Ouganda : shilling (UGX)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_USA_DOLLAR_USD</source>
        <comment>USA  DOLLAR  (USD)</comment>
        <translation>États-Unis : dollar (USD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_URUGUAY_PESO_UYU</source>
        <comment>URUGUAY  PESO  (UYU)</comment>
        <translation>Uruguay : peso (UYU)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UZBEKISTAN_SUM_UZS</source>
        <comment>UZBEKISTAN  SUM  (UZS)</comment>
        <translation>Ouzbékistan : sum (UZS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VENEZUELA_BOLIVAR_VEB</source>
        <comment>VENEZUELA  BOLIVAR  (VEB)</comment>
        <translation>Venezuela : bolivar (VEB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VIETNAM_DONG_VND</source>
        <comment>VIETNAM  DONG  (VND)</comment>
        <translation>Viêt Nam : dong (VND)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VANUATU_VATU_VUV</source>
        <comment>VANUATU  VATU  (VUV)</comment>
        <translation>Vanuatu : vatu (VUV)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAMOA_TALA_WST</source>
        <comment>SAMOA  TALA  (WST)</comment>
        <translation>Samoa : tala (WST)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_CHAD_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC CHAD CFA-FRANC  (XAF)</comment>
        <translation>République centrafricaine, Tchad : franc CFA (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_EQUATORIAL_GUINEA_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC EQUATORIAL GUINEA CFA-FRANC  (XAF)</comment>
        <translation>République centrafricaine, Guinée équatoriale : franc CFA (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_GABUN_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC GABUN CFA-FRANC  (XAF)</comment>
        <translation>République centrafricaine, Gabon : franc CFA (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_CAMEROON_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC CAMEROON CFA-FRANC  (XAF)</comment>
        <translation>République centrafricaine, Cameroun : franc CFA (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_CONGO_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC CONGO  CFA-FRANC  (XAF)</comment>
        <translation>République centrafricaine, Congo : franc CFA (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ANGUILLA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ANGUILLA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Anguilla : dollar des Caraïbes orientales (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ANTIGUA_AND_BARBUDA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ANTIGUA AND BARBUDA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Antigua-et-Barbuda : dollar des Caraïbes orientales (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DOMINICA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>DOMINICA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Dominique : dollar des Caraïbes orientales (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GRENADA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>GRENADA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Grenade : dollar des Caraïbes orientales (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MONTSERRAT_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>MONTSERRAT EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Montserrat : dollar des Caraïbes orientales (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_KITTS_AND_NEVIS_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ST. KITTS AND NEVIS EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Saint-Kitts-et-Nevis : dollar des Caraïbes orientales (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_LUCIA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ST. LUCIA  EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Sainte-Lucie : dollar des Caraïbes orientales (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_VINCENT_AND_GRENADINES_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ST. VINCENT AND GRENADINES  EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Saint-Vincent-et-les-Grenadines : dollar des Caraïbes orientales (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EUROPEAN_UNION_EUROPEAN_CURRENCY_UNIT_XEU</source>
        <comment>EUROPEAN UNION  EUROPEAN CURRENCY UNIT  (XEU)</comment>
        <translation>Union européenne : unité monétaire européenne (XEU)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BENIN_CFA_FRANC_XOF</source>
        <comment>BENIN  CFA-FRANC  (XOF)</comment>
        <translation>Bénin : franc CFA (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BURKINA_FASO_CFA_FRANC_XOF</source>
        <comment>BURKINA FASO CFA-FRANC  (XOF)</comment>
        <translation>Burkina Faso : franc CFA (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IVORY_COAST_CFA_FRANC_XOF</source>
        <comment>IVORY COAST CFA-FRANC  (XOF) </comment>
        <translation>Côte d'Ivoire : franc CFA (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALI_CFA_FRANC_XOF</source>
        <comment>MALI CFA-FRANC  (XOF)</comment>
        <translation>Mali : franc CFA (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NIGER_CFA_FRANC_XOF</source>
        <comment>NIGER CFA-FRANC  (XOF)</comment>
        <translation>Niger : franc CFA (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SENEGAL_CFA_FRANC_XOF</source>
        <comment>SENEGAL CFA-FRANC  (XOF) </comment>
        <translation>Sénégal : franc CFA (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TOGO_CFA_FRANC_XOF</source>
        <comment>TOGO  CFA-FRANC  (XOF)</comment>
        <translation>Togo : franc CFA (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_YEMEN_RIAL_YER</source>
        <comment>YEMEN  RIAL  (YER)</comment>
        <translation>Yémen : rial (YER)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_YUGOSLAVIA_DINAR_YUN</source>
        <comment>YUGOSLAVIA  DINAR  (YUN)</comment>
        <translation>Yougoslavie : dinar (YUN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SOUTH_AFRICA_LESOTHO_RAND_FINANCE_ZAL</source>
        <comment>SOUTH AFRICA; LESOTHO  RAND (FINANCE)  (ZAL)</comment>
        <translation>Afrique du Sud, Lesotho : rand financier (ZAL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SOUTH_AFRICA_LESOTHO_NAMIBIA_RAND_ZAR</source>
        <comment>SOUTH AFRICA; LESOTHO; (NAMIBIA) RAND  (ZAR)</comment>
        <translation>Afrique du Sud, Lesotho, Namibie : rand (ZAR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAMBIA_KWACHA_ZMK</source>
        <comment>SAMBIA  KWACHA  (ZMK)</comment>
        <translation>Zambie : kwacha (ZMK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZAIRE_NEW_ZAIRE_ZRN</source>
        <comment>ZAIRE  NEW ZAIRE  (ZRN)</comment>
        <translation>Zaïre : nouveau zaïre (ZRN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZIMBABWE_DOLLAR_ZWD</source>
        <comment>ZIMBABWE  DOLLAR  (ZWD)</comment>
        <translation>Zimbabwe : dollar (ZWD)</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallCostsView</name>
    <message>
        <source>TXT_RID_HEADER_CREDIT_AVAILABLE</source>
        <comment>Credit Available</comment>
        <translation>Crédit disponible</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_CURRENT_CREDIT_AVAILABLE_IS_2</source>
        <comment>Your current credit available is %1 units</comment>
        <translation>Votre crédit disponible est de %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_EXPIRATION_DATE</source>
        <comment>Expiration Date</comment>
        <translation>Date d'expiration</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_REMAINING_CREDIT_WILL_EXPIRE_ON_1</source>
        <comment>Your remaining credit will expire on %1</comment>
        <translation>Votre crédit restant expirera le %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_LAST_DEPOSIT</source>
        <comment>Last Deposit</comment>
        <translation>Dernier versement</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_LAST_DEPOSIT_AMOUNT_WAS_1_UNITS</source>
        <comment>Your last deposit amount was %1</comment>
        <translation>Votre dernier versement était de %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_LAST_CALL</source>
        <comment>Last Call</comment>
        <translation>Dernier appel</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_LAST_CALL_WAS_1_UNITS</source>
        <comment>The cost of your last call was %1</comment>
        <translation>Le coût de votre dernier appel était de %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DIALED_CALLS</source>
        <comment>Dialed Calls</comment>
        <translation>Appels émis</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_DIALED_CALLS_IS_1_UNITS</source>
        <comment>The cost of your dialed calls is %1</comment>
        <translation>Le coût de vos appels émis est de %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ANSWERED_CALLS</source>
        <comment>Answered Calls</comment>
        <translation>Appels reçus</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_ANSWERED_CALLS_IS_1_UNITS</source>
        <comment>The cost of your answered calls is %1</comment>
        <translation>Le coût de vos appels reçus est de %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ALL_CALLS</source>
        <comment>All Calls</comment>
        <translation>Tous les appels</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_ALL_CALLS_IS_1_UNITS</source>
        <comment>The cost of all your calls is %1</comment>
        <translation>Le coût de tous vos appels est de %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_COSTS</source>
        <comment>Call Costs</comment>
        <translation>Coût des appels</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallDataTimesView</name>
    <message>
        <source>TXT_RID_HEADER_DATA_TIMES</source>
        <comment>Data Times</comment>
        <translation>Durée des données</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_CURRENT_2_DATA_SESSION_TIME_IS_1</source>
        <comment>The current Data Session time for %2 is %1.</comment>
        <translation>La durée de la session de données en cours pour %2 est de %1.</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_TOTAL_TIME_FOR_ALL_YOUR_GPRS_DATA_SESSIONS_IS_1</source>
        <comment>The total time for all your data sessions is %1.</comment>
        <translation>La durée totale de toutes vos sessions de données est de %1.</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_RESET</source>
        <comment>Reset</comment>
        <translation>Remise à zéro</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ARE_YOU_SURE_YOU_WANT_TO_RESET_DATA_SESSIONS_TIMER</source>
        <comment>Are you sure you want to reset the data sessions timer?</comment>
        <translation>Voulez-vous vraiment remettre à zéro le compteur des sessions de données ?</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallDataVolumesDetailView</name>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_YOUR_SENT_DATA_VOLUME_IS_1</source>
        <comment>Your sent data volume is %1</comment>
        <translation>Votre volume de données envoyées est de %1</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_YOUR_RECEIVED_DATA_VOLUME_IS_1</source>
        <comment>Your received data volume is %1</comment>
        <translation>Votre volume de données reçues est de %1</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_YOUR_TOTAL_DATA_TRANSFER_VOLUME_IS_1</source>
        <comment>Your total data transfer volume is %1</comment>
        <translation>Votre volume total de données transférées est de %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_VOLUME</source>
        <comment>Data Volume</comment>
        <translation>Volume de données</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallDataVolumesView</name>
    <message>
        <source>TXT_RID_HEADER_RESET</source>
        <comment>Reset</comment>
        <translation>Remise à zéro</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ARE_YOU_SURE_YOU_WANT_TO_RESET_DATA_SESSIONS_VOLUME</source>
        <comment>Are you sure you want to reset the data sessions volume?</comment>
        <translation>Voulez-vous vraiment remettre à zéro le volume des sessions de données ?</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_VOLUMES</source>
        <comment>Data Volumes</comment>
        <translation>Volume des données</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallMeter</name>
    <message>
        <source>TXT_RID_LIST_A_UNITS</source>
        <comment>units</comment>
        <translation>unités</translation>
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
        <translation>Voulez-vous remettre à zéro la durée des appels émis ?</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_RESET_ANSWERED_CALLS_TIMER</source>
        <comment>Would you like to reset the Answered Calls timer?</comment>
        <translation>Voulez-vous remettre à zéro la durée des appels reçus ?</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_RESET_CIRCUIT_SWITCHING_DATA_CALLS_TIMER</source>
        <comment>Would you like to reset the Circuit Switching Data Calls timer?</comment>
        <translation>Voulez-vous remettre à zéro la durée des appels de données par circuit ?</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_RESET_ALL_CALLS_TIMER</source>
        <comment>Would you like to reset the All Calls timer?</comment>
        <translation>Voulez-vous remettre à zéro la durée de tous les appels ?</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_RESET_TIMER</source>
        <comment>Reset Timer</comment>
        <translation>Remise à zéro</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_CURRENT_REQUEST_CANNOT_BE_COMPLETED_WHILE_YOU_ARE_IN_CALLING</source>
        <comment>Current request cannot be completed, while you are in calling. </comment>
        <translation>Cette action est impossible pendant un appel.</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_TIMES</source>
        <comment>Call Times</comment>
        <translation>Durée des appels</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Utilisation : %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[options]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options :</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Arguments :</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Affiche la version.</translation>
    </message>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Affiche cette aide.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Affiche l'aide avec les options propres à Qt.</translation>
    </message>
    <message>
        <source>Unknown option '%1'.</source>
        <translation>Option inconnue « %1 ».</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Options inconnues : %1.</translation>
    </message>
    <message>
        <source>Missing value after '%1'.</source>
        <translation>Il manque une valeur après « %1 ».</translation>
    </message>
    <message>
        <source>Unexpected value after '%1'.</source>
        <translation>Valeur inattendue après « %1 ».</translation>
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
        <translation>Tout remettre à zéro</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_ALL_CALL_COSTS</source>
        <comment>Reset All Call Costs</comment>
        <translation>Effacer tous les coûts</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_DIALED_CALL_COSTS</source>
        <comment>Reset Dialed Call Costs</comment>
        <translation>Effacer coûts émis</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_ANSWERED_CALL_COSTS</source>
        <comment>Reset Answered Call Costs</comment>
        <translation>Effacer coûts reçus</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CREDIT_LIMIT</source>
        <comment>Credit Limit</comment>
        <translation>Plafond de crédit</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ADJUST_CREDIT_LIMIT</source>
        <comment>Adjust Credit Limit</comment>
        <translation>Régler le plafond</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CURRENCY</source>
        <comment>Currency</comment>
        <translation>Devise</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CURRENCY_TYPE</source>
        <comment>Currency Type</comment>
        <translation>Type de devise</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_COST_PER_MINUTE</source>
        <comment>Cost Per Minute</comment>
        <translation>Prix par minute</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CREDIT_AVAILABLE</source>
        <comment>Credit Available</comment>
        <translation>Crédit disponible</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_EXPIRATION_DATE</source>
        <comment>Expiration Date</comment>
        <translation>Date d'expiration</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LAST_DEPOSIT</source>
        <comment>Last Deposit</comment>
        <translation>Dernier versement</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LAST_CALL_COST</source>
        <comment>Last Call Cost</comment>
        <translation>Coût dernier appel</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_DIALED_CALLS_COST</source>
        <comment>Dialed Calls Cost</comment>
        <translation>Coût appels émis</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ANSWERED_CALLS_COST</source>
        <comment>Answered Calls Cost</comment>
        <translation>Coût appels reçus</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ALL_CALLS_COST</source>
        <comment>All Calls Cost</comment>
        <translation>Coût total</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CALL_COST_SETUP</source>
        <comment>Call Cost Setup</comment>
        <translation>Réglage des coûts</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_RECENT_DATA_SESSION</source>
        <comment>Current Data Session</comment>
        <translation>Session de données en cours</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_GPRS_DATA_SESSION_1</source>
        <comment>GPRS Data Session 1</comment>
        <translation>Session GPRS 1</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_GPRS_DATA_SESSION_2</source>
        <comment>GPRS Data Session 2</comment>
        <translation>Session GPRS 2</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_GPRS_DATA_SESSION_3</source>
        <comment>GPRS Data Session 3</comment>
        <translation>Session GPRS 3</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_ALL_DATA_SESSIONS</source>
        <comment>All Data Sessions</comment>
        <translation>Toutes les sessions</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_TOTAL_TIME</source>
        <comment>Total Time</comment>
        <translation>Durée totale</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_ALL_DATA_SESSIONS</source>
        <comment>Reset All Data Sessions</comment>
        <translation>Remettre à zéro</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_SENT</source>
        <comment>Sent</comment>
        <translation>Envoyé</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RECEIVED</source>
        <comment>Received</comment>
        <translation>Reçu</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_SUM</source>
        <comment>Sum</comment>
        <translation>Total</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_TOTAL_DATA_TRANSFERRED</source>
        <comment>Total Data Transferred</comment>
        <translation>Total transféré</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_GPRS_DATA_SESSION_1</source>
        <comment>GPRS Data Session 1</comment>
        <translation>Session GPRS 1</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_GPRS_DATA_SESSION_2</source>
        <comment>GPRS Data Session 2</comment>
        <translation>Session GPRS 2</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_GPRS_DATA_SESSION_3</source>
        <comment>GPRS Data Session 3</comment>
        <translation>Session GPRS 3</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LAST_CALL</source>
        <comment>Last Call</comment>
        <translation>Dernier appel</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_DIALED_CALLS</source>
        <comment>Dialed Calls</comment>
        <translation>Appels émis</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ANSWERED_CALLS</source>
        <comment>Answered Calls</comment>
        <translation>Appels reçus</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CIRCUIT_SWITCH_DATA_CALLS</source>
        <comment>Data Calls</comment>
        <translation>Appels de données</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ALL_CALLS</source>
        <comment>All Calls</comment>
        <translation>Tous les appels</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LIFETIME_CALLS</source>
        <comment>Lifetime Calls</comment>
        <translation>Total des appels</translation>
    </message>
</context>
<context>
    <name>ReadFile</name>
    <message>
        <source>there is none</source>
        <translation>il n'existe pas</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>ce n'est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>il dépasse %1 Mio</translation>
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
        <translation>Saisir le PIN1</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_WRONG_PIN1</source>
        <comment>Wrong PIN1</comment>
        <translation>PIN1 incorrect</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_PIN1_IS_BLOCKED</source>
        <comment>PIN1 is blocked. Only PUK1 can unblock it.</comment>
        <translation>Le PIN1 est bloqué. Seul le PUK1 peut le débloquer.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_SIM_CANNOT_BE_ASKED_PIN1</source>
        <comment>The SIM card cannot be asked for PIN1.</comment>
        <translation>Le PIN1 ne peut pas être demandé à la carte SIM.</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_PIN2</source>
        <comment>PIN2</comment>
        <translation>PIN2</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ENTER_PIN2</source>
        <comment>Enter PIN2</comment>
        <translation>Saisir le PIN2</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_WRONG_PIN2</source>
        <comment>Wrong PIN2</comment>
        <translation>PIN2 incorrect</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_PIN2_IS_BLOCKED</source>
        <comment>PIN2 is blocked. Only PUK2 can unblock it.</comment>
        <translation>Le PIN2 est bloqué. Seul le PUK2 peut le débloquer.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_SIM_CANNOT_BE_ASKED_PIN2</source>
        <comment>The SIM card cannot be asked for PIN2.</comment>
        <translation>Le PIN2 ne peut pas être demandé à la carte SIM.</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_OK</source>
        <comment>OK</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_CANCEL</source>
        <comment>Cancel</comment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_TRIES_LEFT_1</source>
        <comment>Tries left: %1</comment>
        <translation>Essais restants : %1</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_4_TO_8_DIGITS</source>
        <comment>4 to 8 digits</comment>
        <translation>4 à 8 chiffres</translation>
    </message>
</context>
<context>
    <name>ZMessageDlg</name>
    <message>
        <source>TXT_RID_SOFTKEY_YES</source>
        <comment>Yes</comment>
        <translation>Oui</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_NO</source>
        <comment>No</comment>
        <translation>Non</translation>
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
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>ZSingleSelectDlg</name>
    <message>
        <source>TXT_RID_SOFTKEY_SELECT</source>
        <comment>Select</comment>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_CANCEL</source>
        <comment>Cancel</comment>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>ZSoftKey</name>
    <message>
        <source>TXT_RID_LABEL_LEFT_SOFTKEY</source>
        <comment>Left softkey</comment>
        <translation>Touche de gauche</translation>
    </message>
    <message>
        <source>TXT_RID_LABEL_RIGHT_SOFTKEY</source>
        <comment>Right softkey</comment>
        <translation>Touche de droite</translation>
    </message>
</context>
<context>
    <name>handset</name>
    <message>
        <source>The call log is damaged. The next start begins a new one, with what can be read of it.</source>
        <translation>Le journal des appels est endommagé. Le prochain démarrage en commence un nouveau, avec ce qui peut en être lu.</translation>
    </message>
    <message>
        <source>The call log is damaged, and that cannot be noted for the next start.</source>
        <translation>Le journal des appels est endommagé, et cela ne peut pas être noté pour le prochain démarrage.</translation>
    </message>
    <message>
        <source>Copying the call log</source>
        <translation>Copie du journal des appels</translation>
    </message>
    <message>
        <source>Reading the damaged call log once more</source>
        <translation>Nouvelle lecture du journal endommagé</translation>
    </message>
    <message>
        <source>Writing the new call log to the disk</source>
        <translation>Écriture du nouveau journal sur le disque</translation>
    </message>
    <message>
        <source>Checking the new call log</source>
        <translation>Vérification du nouveau journal</translation>
    </message>
    <message>
        <source>Looking for the end of the damage</source>
        <translation>Recherche de la fin des dommages</translation>
    </message>
    <message>
        <source>Counting what was read</source>
        <translation>Comptage de ce qui a été lu</translation>
    </message>
    <message>
        <source>Bringing the call log up to date</source>
        <translation>Mise à jour du journal des appels</translation>
    </message>
    <message>
        <source>belongs to another user</source>
        <translation>appartient à un autre utilisateur</translation>
    </message>
    <message>
        <source>may be written by other users</source>
        <translation>peut être écrit par d'autres utilisateurs</translation>
    </message>
    <message>
        <source>The state directory "%1" %2, who can change what is kept in it.</source>
        <translation>Le répertoire d'état "%1" %2, qui peuvent changer ce qui y est conservé.</translation>
    </message>
    <message>
        <source>The state directory "%1" lies in one that may be written by other users, who can put another in its place.</source>
        <translation>Le répertoire d'état "%1" est dans un répertoire que d'autres utilisateurs peuvent écrire, et qui peuvent en mettre un autre à sa place.</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>En attente de %1</translation>
    </message>
    <message>
        <source>another process</source>
        <translation>un autre processus</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>en échec</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>initializing</source>
        <translation>initialisation</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>verrouillé</translation>
    </message>
    <message>
        <source>locked: PIN</source>
        <translation>verrouillé : PIN</translation>
    </message>
    <message>
        <source>locked: PIN2</source>
        <translation>verrouillé : PIN2</translation>
    </message>
    <message>
        <source>locked: PUK</source>
        <translation>verrouillé : PUK</translation>
    </message>
    <message>
        <source>locked: PUK2</source>
        <translation>verrouillé : PUK2</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>disabling</source>
        <translation>désactivation</translation>
    </message>
    <message>
        <source>enabling</source>
        <translation>activation</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>activé</translation>
    </message>
    <message>
        <source>searching</source>
        <translation>recherche d’un réseau</translation>
    </message>
    <message>
        <source>registered</source>
        <translation>enregistré</translation>
    </message>
    <message>
        <source>disconnecting</source>
        <translation>déconnexion</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>connexion</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>connecté</translation>
    </message>
    <message>
        <source>unregistered</source>
        <translation>non enregistré</translation>
    </message>
    <message>
        <source>denied</source>
        <translation>refusé par le réseau</translation>
    </message>
    <message>
        <source>roaming</source>
        <translation>en itinérance</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>hors ligne</translation>
    </message>
    <message>
        <source>%1 is not running</source>
        <translation>%1 n’est pas en cours d’exécution</translation>
    </message>
    <message>
        <source>asking %1</source>
        <translation>%1 est interrogé</translation>
    </message>
    <message>
        <source>no modem</source>
        <translation>aucun modem</translation>
    </message>
    <message>
        <source>%1 does not let this user talk to it</source>
        <translation>%1 ne permet pas à cet utilisateur de lui parler</translation>
    </message>
    <message>
        <source>%1 does not tell its modems</source>
        <translation>%1 n’indique pas ses modems</translation>
    </message>
    <message>
        <source>There is no system bus: %1</source>
        <translation>Il n’y a pas de bus système : %1</translation>
    </message>
    <message>
        <source>ModemManager does not answer</source>
        <translation>ModemManager ne répond pas</translation>
    </message>
    <message>
        <source>The call cannot be made</source>
        <translation>L'appel ne peut pas être émis</translation>
    </message>
    <message>
        <source>The call cannot be made: %1.</source>
        <translation>L'appel ne peut pas être émis : %1.</translation>
    </message>
    <message>
        <source>The call cannot be answered</source>
        <translation>L'appel ne peut pas être pris</translation>
    </message>
    <message>
        <source>The call cannot be ended</source>
        <translation>L'appel ne peut pas être terminé</translation>
    </message>
    <message>
        <source>it is busy</source>
        <translation>il est occupé</translation>
    </message>
    <message>
        <source>it is not ready for that</source>
        <translation>il n'est pas prêt pour cela</translation>
    </message>
    <message>
        <source>the modem cannot do that</source>
        <translation>le modem ne sait pas le faire</translation>
    </message>
    <message>
        <source>that is no number to call</source>
        <translation>ce n'est pas un numéro à appeler</translation>
    </message>
    <message>
        <source>there is no network</source>
        <translation>il n'y a pas de réseau</translation>
    </message>
    <message>
        <source>this user may not</source>
        <translation>cet utilisateur n'en a pas le droit</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>il ne répond pas</translation>
    </message>
    <message>
        <source>it failed (%1)</source>
        <translation>échec (%1)</translation>
    </message>
    <message>
        <source>The network has not put the call through.</source>
        <translation>Le réseau n'a pas acheminé l'appel.</translation>
    </message>
    <message>
        <source>The telephone does not dial: %1.</source>
        <translation>Le téléphone ne compose pas : %1.</translation>
    </message>
    <message>
        <source>The telephone does not take the call: %1.</source>
        <translation>Le téléphone ne prend pas l'appel : %1.</translation>
    </message>
    <message>
        <source>The telephone does not end the call: %1.</source>
        <translation>Le téléphone ne termine pas l'appel : %1.</translation>
    </message>
</context>
<context>
    <name>host::AccountSection</name>
    <message>
        <source>Nothing has been paid in.</source>
        <translation>Aucun versement n'a été fait.</translation>
    </message>
    <message>
        <source>Credit: %1</source>
        <translation>Crédit : %1</translation>
    </message>
    <message>
        <source>Last deposit: %1, good until %2</source>
        <translation>Dernier versement : %1, valable jusqu'au %2</translation>
    </message>
    <message>
        <source>Prepaid account</source>
        <translation>Compte prépayé</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Crédit</translation>
    </message>
    <message>
        <source>Last deposit</source>
        <translation>Dernier versement</translation>
    </message>
    <message>
        <source>Amount to pay in</source>
        <translation>Montant à verser</translation>
    </message>
    <message>
        <source>In units or in the currency, as costs are</source>
        <translation>En unités ou dans la devise, comme les coûts</translation>
    </message>
    <message>
        <source>Why nothing was paid in</source>
        <translation>Pourquoi rien n'a été versé</translation>
    </message>
    <message>
        <source>Good until</source>
        <translation>Valable jusqu'au</translation>
    </message>
    <message>
        <source>Until when the deposit is good: year, month, day</source>
        <translation>Date limite de validité du versement : année, mois, jour</translation>
    </message>
    <message>
        <source>&amp;Top up</source>
        <translation>&amp;Recharger</translation>
    </message>
    <message>
        <source>Pays the amount in</source>
        <translation>Verse le montant</translation>
    </message>
    <message>
        <source>until</source>
        <translation>jusqu'au</translation>
    </message>
</context>
<context>
    <name>host::CallNotice</name>
    <message>
        <source>Dialing</source>
        <translation>Numérotation</translation>
    </message>
    <message>
        <source>Incoming call</source>
        <translation>Appel entrant</translation>
    </message>
    <message>
        <source>Call waiting</source>
        <translation>Appel en attente</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>En garde</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>Number withheld</source>
        <translation>Numéro masqué</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Appel</translation>
    </message>
    <message>
        <source>Number to dial</source>
        <translation>Numéro à composer</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Appel terminé</translation>
    </message>
    <message>
        <source>Not answered</source>
        <translation>Sans réponse</translation>
    </message>
</context>
<context>
    <name>host::CallsModel</name>
    <message>
        <source>Dialed, not answered</source>
        <translation>Émis, sans réponse</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Manqué</translation>
    </message>
    <message>
        <source>Data call</source>
        <translation>Appel de données</translation>
    </message>
    <message>
        <source>Dialed</source>
        <translation>Émis</translation>
    </message>
    <message>
        <source>Answered</source>
        <translation>Reçu</translation>
    </message>
    <message>
        <source>number withheld</source>
        <translation>numéro masqué</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>Number and time</source>
        <translation>Numéro et heure</translation>
    </message>
    <message>
        <source>Duration and cost</source>
        <translation>Durée et coût</translation>
    </message>
    <message>
        <source>units</source>
        <translation>unités</translation>
    </message>
</context>
<context>
    <name>host::CostSection</name>
    <message>
        <source>not available</source>
        <translation>indisponible</translation>
    </message>
    <message>
        <source>units</source>
        <translation>unités</translation>
    </message>
    <message>
        <source>Costs</source>
        <translation>Coûts</translation>
    </message>
    <message>
        <source>Costs are in</source>
        <translation>Coûts en</translation>
    </message>
    <message>
        <source>the currency</source>
        <translation>la devise</translation>
    </message>
    <message>
        <source>Price of a unit</source>
        <translation>Prix de l'unité</translation>
    </message>
    <message>
        <source>The price of a unit, as 0.23</source>
        <translation>Le prix d'une unité, par exemple 0.23</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Devise</translation>
    </message>
    <message>
        <source>The currency's code, at most three characters</source>
        <translation>Le code de la devise, trois caractères au plus</translation>
    </message>
    <message>
        <source>Credit limit</source>
        <translation>Plafond de crédit</translation>
    </message>
    <message>
        <source>Cost of the call</source>
        <translation>Coût de l'appel</translation>
    </message>
    <message>
        <source>Why the costs were not set</source>
        <translation>Pourquoi les coûts n'ont pas été réglés</translation>
    </message>
    <message>
        <source>Set &amp;price</source>
        <translation>Fixer le &amp;prix</translation>
    </message>
    <message>
        <source>Writes price and currency to the SIM card</source>
        <translation>Écrit le prix et la devise sur la carte SIM</translation>
    </message>
    <message>
        <source>This call</source>
        <translation>Cet appel</translation>
    </message>
    <message>
        <source>Last call</source>
        <translation>Dernier appel</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>%1; units left: %2</source>
        <translation>%1 ; unités restantes : %2</translation>
    </message>
    <message>
        <source>The modem's advice of charge says what calls cost.</source>
        <translation>L'information de taxation du modem indique le coût des appels.</translation>
    </message>
    <message>
        <source>This telephone charges no calls by itself.</source>
        <translation>Ce téléphone ne taxe lui-même aucun appel.</translation>
    </message>
</context>
<context>
    <name>host::Display</name>
    <message>
        <source>Display of the phone</source>
        <translation>Écran du téléphone</translation>
    </message>
</context>
<context>
    <name>host::FailuresSection</name>
    <message>
        <source>Failures</source>
        <translation>Pannes</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Opération</translation>
    </message>
    <message>
        <source>Let it &amp;fail</source>
        <translation>&amp;Faire échouer</translation>
    </message>
    <message>
        <source>From now on the operation only answers the code</source>
        <translation>Désormais, l'opération ne répond plus que le code</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Enlever</translation>
    </message>
    <message>
        <source>The chosen operation works again</source>
        <translation>L'opération choisie fonctionne de nouveau</translation>
    </message>
    <message>
        <source>Remove a&amp;ll</source>
        <translation>T&amp;out enlever</translation>
    </message>
    <message>
        <source>Every operation works again</source>
        <translation>Toutes les opérations fonctionnent de nouveau</translation>
    </message>
    <message>
        <source>What the phone's libraries ask of the telephone</source>
        <translation>Ce que les bibliothèques du téléphone lui demandent</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>What the operation answers: a name, or a number; not Success</source>
        <translation>Ce que répond l'opération : un nom ou un nombre ; pas Success</translation>
    </message>
    <message>
        <source>Operations that fail</source>
        <translation>Opérations qui échouent</translation>
    </message>
    <message>
        <source>Failing now</source>
        <translation>Échoue maintenant</translation>
    </message>
</context>
<context>
    <name>host::FiguresSection</name>
    <message>
        <source>Last call</source>
        <translation>Dernier appel</translation>
    </message>
    <message>
        <source>Dialed calls</source>
        <translation>Appels émis</translation>
    </message>
    <message>
        <source>Answered calls</source>
        <translation>Appels reçus</translation>
    </message>
    <message>
        <source>Data calls</source>
        <translation>Appels de données</translation>
    </message>
    <message>
        <source>All calls</source>
        <translation>Tous les appels</translation>
    </message>
    <message>
        <source>Lifetime calls</source>
        <translation>Total des appels</translation>
    </message>
    <message>
        <source>Call timers</source>
        <translation>Compteurs d'appels</translation>
    </message>
    <message>
        <source>Add a &amp;ready-made history</source>
        <translation>Ajouter un &amp;historique tout prêt</translation>
    </message>
    <message>
        <source>Adds a dozen calls of the last days to the call log</source>
        <translation>Ajoute une douzaine d'appels des derniers jours au journal</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>indisponible</translation>
    </message>
</context>
<context>
    <name>host::Keypad</name>
    <message>
        <source>Call</source>
        <translation>Appeler</translation>
    </message>
    <message>
        <source>Hang up</source>
        <translation>Raccrocher</translation>
    </message>
    <message>
        <source>Left softkey</source>
        <translation>Touche de gauche</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Right softkey</source>
        <translation>Touche de droite</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>Étoile</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>Dièse</translation>
    </message>
    <message>
        <source>Keypad</source>
        <translation>Clavier</translation>
    </message>
</context>
<context>
    <name>host::Line</name>
    <message>
        <source>Dialing</source>
        <translation>Numérotation</translation>
    </message>
    <message>
        <source>Ringing</source>
        <translation>Sonne</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>On hold %1</source>
        <translation>En garde %1</translation>
    </message>
    <message>
        <source>Connected %1</source>
        <translation>Connecté %1</translation>
    </message>
    <message>
        <source>No modem</source>
        <translation>Pas de modem</translation>
    </message>
    <message>
        <source>number withheld</source>
        <translation>numéro masqué</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Libre</translation>
    </message>
    <message>
        <source>The credit limit is reached in %1 s.</source>
        <translation>Le plafond de crédit sera atteint dans %1 s.</translation>
    </message>
    <message>
        <source>The credit is used up in %1 s.</source>
        <translation>Le crédit sera épuisé dans %1 s.</translation>
    </message>
    <message>
        <source>The telephone has ended the call: the credit limit is reached.</source>
        <translation>Le téléphone a mis fin à l'appel : le plafond de crédit est atteint.</translation>
    </message>
    <message>
        <source>The telephone has ended the call: the credit is used up.</source>
        <translation>Le téléphone a mis fin à l'appel : le crédit est épuisé.</translation>
    </message>
    <message>
        <source>This telephone cannot be driven from here.</source>
        <translation>Ce téléphone ne peut pas être commandé d'ici.</translation>
    </message>
    <message>
        <source>data call</source>
        <translation>appel de données</translation>
    </message>
    <message>
        <source>voice call</source>
        <translation>appel vocal</translation>
    </message>
    <message>
        <source>The call log cannot be written. The end of a call or a packet-data session is kept in memory, and written as soon as it can be.</source>
        <translation>Le journal des appels ne peut pas être écrit. La fin d'un appel ou d'une session de données est gardée en mémoire et écrite dès que possible.</translation>
    </message>
</context>
<context>
    <name>host::LineSection</name>
    <message>
        <source>&amp;Dial</source>
        <translation>&amp;Composer</translation>
    </message>
    <message>
        <source>Calls the number from this phone</source>
        <translation>Appelle le numéro depuis ce téléphone</translation>
    </message>
    <message>
        <source>&amp;Other side answers</source>
        <translation>Le correspon&amp;dant répond</translation>
    </message>
    <message>
        <source>The called side answers; the call is connected</source>
        <translation>Le correspondant répond ; l'appel est connecté</translation>
    </message>
    <message>
        <source>Dial d&amp;ata call</source>
        <translation>Appel de do&amp;nnées</translation>
    </message>
    <message>
        <source>Sets up a circuit-switched data call to the number</source>
        <translation>Établit un appel de données par circuit vers le numéro</translation>
    </message>
    <message>
        <source>&amp;Incoming call</source>
        <translation>Appel &amp;entrant</translation>
    </message>
    <message>
        <source>The number calls this phone; empty for a withheld number</source>
        <translation>Le numéro appelle ce téléphone ; vide pour un numéro masqué</translation>
    </message>
    <message>
        <source>&amp;Hang up</source>
        <translation>&amp;Raccrocher</translation>
    </message>
    <message>
        <source>Ends the call on the line, whatever its state</source>
        <translation>Met fin à l'appel en ligne, quel que soit son état</translation>
    </message>
    <message>
        <source>A&amp;nswer</source>
        <translation>Ré&amp;pondre</translation>
    </message>
    <message>
        <source>Answers the incoming call; the call is connected</source>
        <translation>Répond à l'appel entrant ; l'appel est connecté</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>State of the line</source>
        <translation>État de la ligne</translation>
    </message>
    <message>
        <source>End of charging</source>
        <translation>Fin de la taxation</translation>
    </message>
    <message>
        <source>What is not in the call log yet</source>
        <translation>Ce qui n'est pas encore dans le journal</translation>
    </message>
    <message>
        <source>What the telephone has told</source>
        <translation>Ce que le téléphone a signalé</translation>
    </message>
    <message>
        <source>Digits, +, * and #</source>
        <translation>Chiffres, +, * et #</translation>
    </message>
    <message>
        <source>Clear the number</source>
        <translation>Effacer le numéro</translation>
    </message>
    <message>
        <source>N&amp;umber</source>
        <translation>N&amp;uméro</translation>
    </message>
</context>
<context>
    <name>host::MenuScreen</name>
    <message>
        <source>TXT_RID_HEADER_RECENT_CALLS</source>
        <comment>Recent Calls</comment>
        <translation>Appels récents</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_OPEN</source>
        <comment>Open</comment>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_EXIT</source>
        <comment>Exit</comment>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_TIMES</source>
        <comment>Call Times</comment>
        <translation>Durée des appels</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_COSTS</source>
        <comment>Call Costs</comment>
        <translation>Coût des appels</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_TIMES</source>
        <comment>Data Times</comment>
        <translation>Durée des données</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_VOLUMES</source>
        <comment>Data Volumes</comment>
        <translation>Volume des données</translation>
    </message>
</context>
<context>
    <name>host::ModemSection</name>
    <message>
        <source>call times</source>
        <translation>durée des appels</translation>
    </message>
    <message>
        <source>all calls</source>
        <translation>tous les appels</translation>
    </message>
    <message>
        <source>data calls</source>
        <translation>appels de données</translation>
    </message>
    <message>
        <source>data sessions</source>
        <translation>sessions de données</translation>
    </message>
    <message>
        <source>advice of charge</source>
        <translation>information de taxation</translation>
    </message>
    <message>
        <source>PIN2</source>
        <translation>PIN2</translation>
    </message>
    <message>
        <source>credit</source>
        <translation>crédit</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>connecté</translation>
    </message>
    <message>
        <source>, %1 B sent, %2 B received</source>
        <translation>, %1 o envoyés, %2 o reçus</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>non connecté</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>Modem</source>
        <translation>Modem</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Charged by</source>
        <translation>Taxé par</translation>
    </message>
    <message>
        <source>Recorded by</source>
        <translation>Enregistré par</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Indisponible</translation>
    </message>
    <message>
        <source>%1, through %2</source>
        <translation>%1, par %2</translation>
    </message>
    <message>
        <source>the modem's advice of charge</source>
        <translation>l'information de taxation du modem</translation>
    </message>
    <message>
        <source>the tariff of this telephone</source>
        <translation>le tarif de ce téléphone</translation>
    </message>
    <message>
        <source>this window</source>
        <translation>cette fenêtre</translation>
    </message>
    <message>
        <source>another process</source>
        <translation>un autre processus</translation>
    </message>
    <message>
        <source>nobody: the call log cannot be written</source>
        <translation>personne : le journal des appels ne peut pas être écrit</translation>
    </message>
</context>
<context>
    <name>host::OpeningProgress</name>
    <message>
        <source>Opening the telephone</source>
        <translation>Ouverture du téléphone</translation>
    </message>
    <message>
        <source>What is being done</source>
        <translation>Ce qui est en cours</translation>
    </message>
    <message>
        <source>How far it is</source>
        <translation>Où cela en est</translation>
    </message>
</context>
<context>
    <name>host::PacketSection</name>
    <message>
        <source>%1 B sent, %2 B received</source>
        <translation>%1 o envoyés, %2 o reçus</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vide</translation>
    </message>
    <message>
        <source>%1 (id %2), %3
%4</source>
        <translation>%1 (id %2), %3
%4</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>indisponible</translation>
    </message>
    <message>
        <source>%1, %2 B
%3</source>
        <translation>%1, %2 o
%3</translation>
    </message>
    <message>
        <source>Packet data</source>
        <translation>Données par paquets</translation>
    </message>
    <message>
        <source>Access point name</source>
        <translation>Nom du point d'accès</translation>
    </message>
    <message>
        <source>1 to 101 characters</source>
        <translation>1 à 101 caractères</translation>
    </message>
    <message>
        <source>Bytes sent each second</source>
        <translation>Octets envoyés chaque seconde</translation>
    </message>
    <message>
        <source>Bytes received each second</source>
        <translation>Octets reçus chaque seconde</translation>
    </message>
    <message>
        <source>&amp;Start session</source>
        <translation>&amp;Démarrer la session</translation>
    </message>
    <message>
        <source>Begins a session, which counts bytes and time</source>
        <translation>Commence une session, qui compte octets et temps</translation>
    </message>
    <message>
        <source>Sto&amp;p session</source>
        <translation>&amp;Arrêter la session</translation>
    </message>
    <message>
        <source>Ends the session</source>
        <translation>Termine la session</translation>
    </message>
    <message>
        <source>Why the session was not changed</source>
        <translation>Pourquoi la session n'a pas été changée</translation>
    </message>
    <message>
        <source>All sessions</source>
        <translation>Toutes les sessions</translation>
    </message>
    <message>
        <source>Bytes sent a second</source>
        <translation>Octets envoyés par seconde</translation>
    </message>
    <message>
        <source>Bytes received a second</source>
        <translation>Octets reçus par seconde</translation>
    </message>
    <message>
        <source>Session %1</source>
        <translation>Session %1</translation>
    </message>
    <message>
        <source>Session %1:</source>
        <translation>Session %1 :</translation>
    </message>
    <message>
        <source>All sessions:</source>
        <translation>Toutes les sessions :</translation>
    </message>
    <message>
        <source>S&amp;end update</source>
        <translation>&amp;Envoyer la mise à jour</translation>
    </message>
    <message>
        <source>Tells the screens that the figures have changed</source>
        <translation>Dit aux écrans que les valeurs ont changé</translation>
    </message>
</context>
<context>
    <name>host::Panel</name>
    <message>
        <source>Sides of the telephone</source>
        <translation>Côtés du téléphone</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>Appels</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Coûts</translation>
    </message>
    <message>
        <source>SIM</source>
        <translation>SIM</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Récents</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>Pannes</translation>
    </message>
</context>
<context>
    <name>host::PhoneWindow</name>
    <message>
        <source>Recent Calls</source>
        <translation>Appels récents</translation>
    </message>
</context>
<context>
    <name>host::Pin2Section</name>
    <message>
        <source>Blocked for good.</source>
        <translation>Bloqué définitivement.</translation>
    </message>
    <message>
        <source>Blocked: only PUK2 helps.</source>
        <translation>Bloqué : seul le PUK2 peut aider.</translation>
    </message>
    <message>
        <source>Off: nobody is asked for it.</source>
        <translation>Désactivé : il n'est demandé à personne.</translation>
    </message>
    <message>
        <source>On, and entered.</source>
        <translation>Activé, et saisi.</translation>
    </message>
    <message>
        <source>On, not entered.</source>
        <translation>Activé, non saisi.</translation>
    </message>
    <message>
        <source>Tries left: PIN2 %1, PUK2 %2.</source>
        <translation>Essais restants : PIN2 %1, PUK2 %2.</translation>
    </message>
    <message>
        <source>PIN2</source>
        <translation>PIN2</translation>
    </message>
    <message>
        <source>State of PIN2</source>
        <translation>État du PIN2</translation>
    </message>
    <message>
        <source>PIN2 is on</source>
        <translation>PIN2 activé</translation>
    </message>
    <message>
        <source>Four to eight digits</source>
        <translation>Quatre à huit chiffres</translation>
    </message>
    <message>
        <source>PUK2</source>
        <translation>PUK2</translation>
    </message>
    <message>
        <source>Eight digits</source>
        <translation>Huit chiffres</translation>
    </message>
    <message>
        <source>New PIN2</source>
        <translation>Nouveau PIN2</translation>
    </message>
    <message>
        <source>What came of it</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>The phone asks for it where a file is written with PIN2</source>
        <translation>Le téléphone le demande là où un fichier s'écrit avec le PIN2</translation>
    </message>
    <message>
        <source>&amp;Switch off and on</source>
        <translation>Éteindre, &amp;rallumer</translation>
    </message>
    <message>
        <source>Forgets that PIN2 has been entered</source>
        <translation>Oublie que le PIN2 a été saisi</translation>
    </message>
    <message>
        <source>&amp;Enter</source>
        <translation>&amp;Saisir</translation>
    </message>
    <message>
        <source>Presents PIN2 to the card, as the phone does; a wrong one costs a try</source>
        <translation>Présente le PIN2 à la carte, comme le téléphone ; un faux coûte un essai</translation>
    </message>
    <message>
        <source>Un&amp;block</source>
        <translation>Dé&amp;bloquer</translation>
    </message>
    <message>
        <source>Sets the new PIN2 and gives all tries back</source>
        <translation>Fixe le nouveau PIN2 et rend tous les essais</translation>
    </message>
    <message>
        <source>PIN2 has been entered.</source>
        <translation>Le PIN2 a été saisi.</translation>
    </message>
    <message>
        <source>Wrong PIN2.</source>
        <translation>PIN2 incorrect.</translation>
    </message>
    <message>
        <source>The new PIN2 counts.</source>
        <translation>Le nouveau PIN2 est en vigueur.</translation>
    </message>
    <message>
        <source>Wrong PUK2.</source>
        <translation>PUK2 incorrect.</translation>
    </message>
</context>
<context>
    <name>host::RecentCallsSection</name>
    <message>
        <source>Recent calls</source>
        <translation>Appels récents</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Deletes the chosen call; the totals stay</source>
        <translation>Supprime l'appel choisi ; les totaux restent</translation>
    </message>
    <message>
        <source>Delete a&amp;ll ...</source>
        <translation>&amp;Tout supprimer ...</translation>
    </message>
    <message>
        <source>Deletes every call that is over; the totals stay</source>
        <translation>Supprime tous les appels terminés ; les totaux restent</translation>
    </message>
    <message>
        <source>Why the calls were not read or deleted</source>
        <translation>Pourquoi les appels n'ont pas été lus ou supprimés</translation>
    </message>
    <message>
        <source>The call log cannot be read.</source>
        <translation>Le journal des appels ne peut pas être lu.</translation>
    </message>
    <message>
        <source>Delete all calls that are over? The totals stay as they are.</source>
        <translation>Supprimer tous les appels terminés ? Les totaux restent tels quels.</translation>
    </message>
    <message>
        <source>&amp;Delete all</source>
        <translation>&amp;Tout supprimer</translation>
    </message>
</context>
<context>
    <name>host::SimFilesSection</name>
    <message>
        <source>%1  =  %2 units</source>
        <translation>%1  =  %2 unités</translation>
    </message>
    <message>
        <source>  (newest)</source>
        <translation>  (la plus récente)</translation>
    </message>
    <message>
        <source>%1  =  no limit</source>
        <translation>%1  =  sans plafond</translation>
    </message>
    <message>
        <source>no currency</source>
        <translation>pas de devise</translation>
    </message>
    <message>
        <source>%1  =  %2, %3 a unit</source>
        <translation>%1  =  %2, %3 l'unité</translation>
    </message>
    <message>
        <source>call meter</source>
        <translation>compteur</translation>
    </message>
    <message>
        <source>maximum</source>
        <translation>maximum</translation>
    </message>
    <message>
        <source>price</source>
        <translation>prix</translation>
    </message>
    <message>
        <source>freely</source>
        <translation>libre</translation>
    </message>
    <message>
        <source>with PIN2</source>
        <translation>avec le PIN2</translation>
    </message>
    <message>
        <source>never</source>
        <translation>jamais</translation>
    </message>
    <message>
        <source>Files of the SIM card</source>
        <translation>Fichiers de la carte SIM</translation>
    </message>
    <message>
        <source>Why the SIM card was not changed</source>
        <translation>Pourquoi la carte SIM n'a pas été changée</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>écriture : %1</translation>
    </message>
    <message>
        <source>Who may write %1</source>
        <translation>Qui peut écrire : %1</translation>
    </message>
</context>
<context>
    <name>host::StateSection</name>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>In memory; gone when the window closes.</source>
        <translation>En mémoire ; perdu quand la fenêtre se ferme.</translation>
    </message>
    <message>
        <source>Kept in %1</source>
        <translation>Conservé dans %1</translation>
    </message>
    <message>
        <source>Where the state is kept</source>
        <translation>Où l'état est conservé</translation>
    </message>
    <message>
        <source>New telephone ...</source>
        <translation>Nouveau téléphone ...</translation>
    </message>
    <message>
        <source>Begins with a new telephone, after a question</source>
        <translation>Commence avec un nouveau téléphone, après une question</translation>
    </message>
    <message>
        <source>What there is now is kept in a file beside it.</source>
        <translation>Ce qu'il y a maintenant est conservé dans un fichier à côté.</translation>
    </message>
    <message>
        <source>What there is now is lost.</source>
        <translation>Ce qu'il y a maintenant est perdu.</translation>
    </message>
    <message>
        <source>Begin with a new telephone? Calls, figures, settings and the simulated SIM card begin anew; a call that is on ends.</source>
        <translation>Commencer avec un nouveau téléphone ? Les appels, les compteurs, les réglages et la carte SIM simulée repartent de zéro ; un appel en cours se termine.</translation>
    </message>
    <message>
        <source>New telephone</source>
        <translation>Nouveau téléphone</translation>
    </message>
    <message>
        <source>Begin anew</source>
        <translation>Recommencer</translation>
    </message>
</context>
<context>
    <name>host::StatusText</name>
    <message>
        <source>the number is not one that can be dialed</source>
        <translation>ce numéro ne peut pas être composé</translation>
    </message>
    <message>
        <source>the line is in another state</source>
        <translation>la ligne est dans un autre état</translation>
    </message>
    <message>
        <source>not allowed now: nothing more may be charged</source>
        <translation>pas permis maintenant : plus rien ne peut être taxé</translation>
    </message>
    <message>
        <source>an amount of at least one unit, and not more than the account holds</source>
        <translation>un montant d'au moins une unité, et pas plus que ce que le compte peut contenir</translation>
    </message>
    <message>
        <source>not possible now</source>
        <translation>impossible maintenant</translation>
    </message>
    <message>
        <source>not allowed</source>
        <translation>pas permis</translation>
    </message>
    <message>
        <source>no price, or a currency of more than three characters</source>
        <translation>pas de prix, ou une devise de plus de trois caractères</translation>
    </message>
    <message>
        <source>the SIM card refuses</source>
        <translation>la carte SIM refuse</translation>
    </message>
    <message>
        <source>an access point name has 1 to 101 Latin-1 characters</source>
        <translation>un nom de point d'accès a 1 à 101 caractères Latin-1</translation>
    </message>
    <message>
        <source>a session is running, or none is</source>
        <translation>une session est en cours, ou aucune ne l'est</translation>
    </message>
    <message>
        <source>PUK2 has eight digits, a PIN2 four to eight</source>
        <translation>le PUK2 a huit chiffres, un PIN2 de quatre à huit</translation>
    </message>
    <message>
        <source>PUK2 is blocked, too</source>
        <translation>le PUK2 est bloqué lui aussi</translation>
    </message>
    <message>
        <source>a PIN2 has four to eight digits</source>
        <translation>un PIN2 a de quatre à huit chiffres</translation>
    </message>
    <message>
        <source>PIN2 is blocked</source>
        <translation>le PIN2 est bloqué</translation>
    </message>
    <message>
        <source>the call is not kept any more</source>
        <translation>l'appel n'est plus conservé</translation>
    </message>
    <message>
        <source>the call is still running</source>
        <translation>l'appel est encore en cours</translation>
    </message>
    <message>
        <source>there is no such rule</source>
        <translation>il n'y a pas de telle règle</translation>
    </message>
    <message>
        <source>the network knows no such tariff</source>
        <translation>le réseau ne connaît pas un tel tarif</translation>
    </message>
    <message>
        <source>the telephone cannot do this</source>
        <translation>le téléphone ne sait pas le faire</translation>
    </message>
    <message>
        <source>the call log cannot be written</source>
        <translation>le journal des appels ne peut pas être écrit</translation>
    </message>
    <message>
        <source>another process records the calls</source>
        <translation>un autre processus enregistre les appels</translation>
    </message>
    <message>
        <source>Not done: %1.</source>
        <translation>Non effectué : %1.</translation>
    </message>
    <message>
        <source>Not done: the telephone answers %1.</source>
        <translation>Non effectué : le téléphone répond %1.</translation>
    </message>
    <message>
        <source>a value is out of range</source>
        <translation>une valeur est hors limites</translation>
    </message>
    <message>
        <source>it is not possible now</source>
        <translation>ce n'est pas possible maintenant</translation>
    </message>
    <message>
        <source>the SIM or the network does not allow it</source>
        <translation>la SIM ou le réseau ne le permet pas</translation>
    </message>
</context>
<context>
    <name>host::TariffSection</name>
    <message>
        <source>Free</source>
        <translation>Gratuit</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unités</translation>
    </message>
    <message>
        <source>for each</source>
        <translation>toutes les</translation>
    </message>
    <message>
        <source>at the start</source>
        <translation>au début</translation>
    </message>
    <message>
        <source>Dialed calls</source>
        <translation>Appels émis</translation>
    </message>
    <message>
        <source>Answered calls</source>
        <translation>Appels reçus</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Tariff</source>
        <translation>Tarif</translation>
    </message>
    <message>
        <source>Why the tariff was not set</source>
        <translation>Pourquoi le tarif n'a pas été réglé</translation>
    </message>
    <message>
        <source>%1 are free</source>
        <translation>%1 : gratuits</translation>
    </message>
    <message>
        <source>Nothing is charged for them</source>
        <translation>Rien n'est taxé pour eux</translation>
    </message>
    <message>
        <source>Units for each interval</source>
        <translation>Unités par intervalle</translation>
    </message>
    <message>
        <source>Interval in seconds</source>
        <translation>Intervalle en secondes</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Units when the call is connected</source>
        <translation>Unités à la connexion de l'appel</translation>
    </message>
</context>
<context>
    <name>host::WaitNotice</name>
    <message>
        <source>Please wait ...</source>
        <translation>Veuillez patienter ...</translation>
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
Codes de retour :
  0  un signal a mis fin au programme et ce qui était en cours est écrit
  2  la ligne de commande est incorrecte
  3  il n'y a pas de bus système, ou le téléphone ne peut pas être ouvert
</translation>
    </message>
    <message>
        <source>See kavcallrecorder --help.</source>
        <translation>Voir kavcallrecorder --help.</translation>
    </message>
    <message>
        <source>Records the calls and data connections of a modem while no window is open.</source>
        <translation>Enregistre les appels et les connexions de données d'un modem quand aucune fenêtre n'est ouverte.</translation>
    </message>
    <message>
        <source>The telephone: %1, the path of a library that has one, or auto: the first over which a modem is there, now or later. Default: auto.</source>
        <translation>Le téléphone : %1, le chemin d'une bibliothèque qui en contient un, ou auto : le premier par lequel un modem est joignable, maintenant ou plus tard. Par défaut : auto.</translation>
    </message>
    <message>
        <source>Record in DIR. Default: %1</source>
        <translation>Enregistrer dans DIR. Par défaut : %1</translation>
    </message>
    <message>
        <source>Keep the calls of the last DAYS days, 0 to 100000; older ones are deleted when recording begins and once a day, and stay in the totals. Default: all are kept.</source>
        <translation>Conserver les appels des DAYS derniers jours, de 0 à 100000 ; les plus anciens sont supprimés au début de l'enregistrement puis une fois par jour, et restent dans les totaux. Par défaut : tous sont conservés.</translation>
    </message>
    <message>
        <source>%1; it is looked for.</source>
        <translation>%1 ; la recherche continue.</translation>
    </message>
    <message>
        <source>Option 'keep-calls' wants a number of days, 0 to %1.</source>
        <translation>L'option « keep-calls » demande un nombre de jours, de 0 à %1.</translation>
    </message>
    <message>
        <source>There is a value missing or too many.</source>
        <translation>Une valeur manque ou est en trop.</translation>
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
        <translation>Affiche les compteurs du téléphone : durée et coût des appels, durée et octets des données par paquets.

Commandes :
  figures [NAME ...]   tous les chiffres, ou ceux-ci ; par défaut
  settings             indication de taxation : mode de calcul des coûts, plafond de crédit, prix
  calls                les appels conservés
  sessions             les sessions de données conservées
  totals               ce qui est conservé, par mois ou selon --by et --cycle-day
  reset NAME           remet à zéro : %1
  delete ID|all        supprime un appel, ou tous ceux qui sont terminés ; les totaux restent
  export FILE          écrit tout l'état en JSON ; « - » est la sortie standard
  import FILE          crée un nouvel état à partir d'un tel fichier

Chiffres : %2.</translation>
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
Codes de retour :
  0  tout s'est bien passé
  1  le téléphone refuse, ou le journal des appels ne peut pas être lu ou écrit
  2  la ligne de commande est incorrecte, ou une modification a été demandée sans --yes
  3  il n'y a pas d'état, ou le téléphone ne peut pas être ouvert
  4  un chiffre demandé n'est pas disponible
  5  le plafond de crédit est atteint, ou le crédit est épuisé
  6  le chiffre de --alert est atteint
  7  un fichier, ou la sortie, ne peut pas être lu ou écrit, ou contient une erreur
</translation>
    </message>
    <message>
        <source>The telephone's state is in DIR. Default: %1</source>
        <translation>L'état du téléphone se trouve dans DIR. Par défaut : %1</translation>
    </message>
    <message>
        <source>The telephone: %1, or the path of a library that has one. Default: simulated.</source>
        <translation>Le téléphone : %1, ou le chemin d'une bibliothèque qui en contient un. Par défaut : simulated.</translation>
    </message>
    <message>
        <source>Speak this language: %1. Default: the locale's. JSON and CSV are the same in each.</source>
        <translation>Parler cette langue : %1. Par défaut : celle des paramètres régionaux. JSON et CSV sont identiques dans toutes.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>Afficher en JSON.</translation>
    </message>
    <message>
        <source>Print comma-separated values.</source>
        <translation>Afficher des valeurs séparées par des virgules.</translation>
    </message>
    <message>
        <source>Reset or delete indeed; nothing is asked.</source>
        <translation>Remettre à zéro ou supprimer sans demander confirmation.</translation>
    </message>
    <message>
        <source>Print anew whenever something changes, until a signal comes.</source>
        <translation>Afficher de nouveau à chaque changement, jusqu'à l'arrivée d'un signal.</translation>
    </message>
    <message>
        <source>Totals by day, month or cycle.</source>
        <translation>Totaux par jour, mois ou cycle (day, month, cycle).</translation>
    </message>
    <message>
        <source>The billing cycle begins on day N, 1 to 28; totals by cycle.</source>
        <translation>Le cycle de facturation commence le jour N, de 1 à 28 ; totaux par cycle.</translation>
    </message>
    <message>
        <source>With delete all: keep the calls of the last DAYS days.</source>
        <translation>Avec delete all : conserver les appels des DAYS derniers jours.</translation>
    </message>
    <message>
        <source>COST N, TIME N or BYTES N: exit code 6 where all calls have cost N or more, lasted N seconds or more, or N bytes or more have gone both ways.</source>
        <translation>COST N, TIME N ou BYTES N : code de retour 6 si l'ensemble des appels a coûté N ou plus, ou duré N secondes ou plus, ou si N octets ou plus ont été échangés dans les deux sens.</translation>
    </message>
    <message>
        <source>What to do.</source>
        <translation>Ce qu'il faut faire.</translation>
    </message>
    <message>
        <source>Option 'alert' wants COST, TIME or BYTES, and a number.</source>
        <translation>L'option « alert » demande COST, TIME ou BYTES, et un nombre.</translation>
    </message>
    <message>
        <source>Option 'by' wants day, month or cycle.</source>
        <translation>L'option « by » demande day, month ou cycle.</translation>
    </message>
    <message>
        <source>Option 'cycle-day' wants a day from 1 to 28.</source>
        <translation>L'option « cycle-day » demande un jour de 1 à 28.</translation>
    </message>
    <message>
        <source>Option 'cycle-day' goes with --by cycle.</source>
        <translation>L'option « cycle-day » va avec --by cycle.</translation>
    </message>
    <message>
        <source>Option 'keep-calls' wants a number of days.</source>
        <translation>L'option « keep-calls » demande un nombre de jours.</translation>
    </message>
    <message>
        <source>Option 'keep-calls' goes with delete all.</source>
        <translation>L'option « keep-calls » va avec delete all.</translation>
    </message>
    <message>
        <source>There is no command '%1'.</source>
        <translation>Il n'y a pas de commande « %1 ».</translation>
    </message>
    <message>
        <source>The command '%1' has a word missing or too many.</source>
        <translation>La commande « %1 » a un mot en moins ou en trop.</translation>
    </message>
    <message>
        <source>There is no '%1' to show or to reset.</source>
        <translation>Il n'y a pas de « %1 » à afficher ou à remettre à zéro.</translation>
    </message>
    <message>
        <source>Options 'watch' and 'alert' go with figures.</source>
        <translation>Les options « watch » et « alert » vont avec figures.</translation>
    </message>
    <message>
        <source>Nothing was changed: '%1' wants --yes.</source>
        <translation>Rien n'a été modifié : « %1 » demande --yes.</translation>
    </message>
    <message>
        <source>Options 'state' and 'backend' want a value.</source>
        <translation>Les options « state » et « backend » demandent une valeur.</translation>
    </message>
    <message>
        <source>Unknown language '%1'; there is: %2.</source>
        <translation>Langue inconnue « %1 » ; il y a : %2.</translation>
    </message>
    <message>
        <source>Options 'json' and 'csv' do not go together.</source>
        <translation>Les options « json » et « csv » ne vont pas ensemble.</translation>
    </message>
    <message>
        <source>units</source>
        <translation>unités</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>octets</translation>
    </message>
    <message>
        <source>currency</source>
        <translation>devise</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activée</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivée</translation>
    </message>
    <message>
        <source>The output cannot be written.</source>
        <translation>La sortie ne peut pas être écrite.</translation>
    </message>
    <message>
        <source>There is no state in "%1".</source>
        <translation>Il n'y a pas d'état dans « %1 ».</translation>
    </message>
    <message>
        <source>The figure of the alert is not available.</source>
        <translation>Le chiffre de l'alerte n'est pas disponible.</translation>
    </message>
    <message>
        <source>The call log cannot be read.</source>
        <translation>Le journal des appels ne peut pas être lu.</translation>
    </message>
    <message>
        <source>Nothing was changed: %1 %2: %3.</source>
        <translation>Rien n'a été modifié : %1 %2 : %3.</translation>
    </message>
    <message>
        <source>delete wants the id of a call, or all.</source>
        <translation>delete demande l'identifiant d'un appel, ou all.</translation>
    </message>
    <message>
        <source>See kavmeter --help.</source>
        <translation>Voir kavmeter --help.</translation>
    </message>
    <message>
        <source>running</source>
        <translation>en cours</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>terminé</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>non abouti</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrompu</translation>
    </message>
    <message>
        <source>data</source>
        <translation>données</translation>
    </message>
    <message>
        <source>voice</source>
        <translation>voix</translation>
    </message>
    <message>
        <source>dialed</source>
        <translation>composé</translation>
    </message>
    <message>
        <source>answered</source>
        <translation>reçu</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>non disponible</translation>
    </message>
    <message>
        <source>is no whole number</source>
        <translation>n'est pas un nombre entier</translation>
    </message>
    <message>
        <source>is no text</source>
        <translation>n'est pas un texte</translation>
    </message>
    <message>
        <source>has no pairs of hexadecimal digits</source>
        <translation>n'est pas fait de paires de chiffres hexadécimaux</translation>
    </message>
    <message>
        <source>%1.%2 is missing</source>
        <translation>%1.%2 manque</translation>
    </message>
    <message>
        <source>%1.%2 is not known</source>
        <translation>%1.%2 n'est pas connu</translation>
    </message>
    <message>
        <source>kept[%1].content cannot be read</source>
        <translation>kept[%1].content ne peut pas être lu</translation>
    </message>
    <message>
        <source>format is not "%1"</source>
        <translation>format n'est pas « %1 »</translation>
    </message>
    <message>
        <source>version is not %1</source>
        <translation>version n'est pas %1</translation>
    </message>
    <message>
        <source>%1 is no list</source>
        <translation>%1 n'est pas une liste</translation>
    </message>
    <message>
        <source>%1 is no row</source>
        <translation>%1 n'est pas une ligne</translation>
    </message>
    <message>
        <source>%1[%2] is not possible</source>
        <translation>%1[%2] n'est pas possible</translation>
    </message>
    <message>
        <source>its totals contradict its rows</source>
        <translation>ses totaux contredisent ses lignes</translation>
    </message>
    <message>
        <source>"%1" cannot be made: %2.</source>
        <translation>« %1 » ne peut pas être créé : %2.</translation>
    </message>
    <message>
        <source>"%1" cannot be written: %2.</source>
        <translation>« %1 » ne peut pas être écrit : %2.</translation>
    </message>
    <message>
        <source>"%1" cannot be read: %2.</source>
        <translation>« %1 » ne peut pas être lu : %2.</translation>
    </message>
    <message>
        <source>"%1", line %2: %3.</source>
        <translation>« %1 », ligne %2 : %3.</translation>
    </message>
    <message>
        <source>"%1" is not empty: a state is imported into a new directory.</source>
        <translation>« %1 » n'est pas vide : un état s'importe dans un nouveau répertoire.</translation>
    </message>
</context>
<context>
    <name>kavrecentcalls</name>
    <message>
        <source>Option '%1' of Qt does not go with option 'tour'.</source>
        <translation>L'option « %1 » de Qt ne va pas avec l'option « tour ».</translation>
    </message>
    <message>
        <source>See kavrecentcalls --help.</source>
        <translation>Voir kavrecentcalls --help.</translation>
    </message>
    <message>
        <source>There is no display to show the phone on; --tour DIR needs none.</source>
        <translation>Il n'y a pas d'écran pour afficher le téléphone ; --tour DIR n'en a pas besoin.</translation>
    </message>
    <message>
        <source>The display "%1" cannot be reached; --tour DIR needs none.</source>
        <translation>L'écran « %1 » n'est pas joignable ; --tour DIR n'en a pas besoin.</translation>
    </message>
    <message>
        <source>The trace file "%1" cannot be opened: %2.</source>
        <translation>Le fichier de trace « %1 » ne peut pas être ouvert : %2.</translation>
    </message>
    <message>
        <source>The script "%1" cannot be read: %2.</source>
        <translation>Le script « %1 » ne peut pas être lu : %2.</translation>
    </message>
    <message>
        <source>The photograph "%1" cannot be written.</source>
        <translation>La photo « %1 » ne peut pas être écrite.</translation>
    </message>
    <message>
        <source>The plug-in gives no screen "%1".</source>
        <translation>Le greffon ne fournit pas d'écran « %1 ».</translation>
    </message>
    <message>
        <source>A new telephone has begun.</source>
        <translation>Un nouveau téléphone a commencé.</translation>
    </message>
    <message>
        <source>There is no new telephone, but the one before: %1.</source>
        <translation>Il n'y a pas de nouveau téléphone, c'est le précédent : %1.</translation>
    </message>
    <message>
        <source>A new telephone has begun. The one before is kept as "%1".</source>
        <translation>Un nouveau téléphone a commencé. Le précédent est conservé sous le nom "%1".</translation>
    </message>
    <message>
        <source>Shows the call meters of the phone: a phone with its display and keypad in a window, and beside it a panel
that makes calls on the simulated telephone.</source>
        <translation>Affiche les compteurs d'appels du téléphone : un téléphone avec son écran et son clavier dans une fenêtre, et à côté
un panneau qui passe des appels sur le téléphone simulé.</translation>
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
Codes de retour :
  0  tout s'est bien passé
  1  une visite a vu autre chose que ce que son script attend
  2  la ligne de commande est incorrecte
  3  le téléphone ne peut pas être ouvert
  4  le fichier de trace ne peut pas être ouvert
  5  le greffon, une autre bibliothèque ou l'une de leurs fonctions manque, ou le greffon ne fournit pas d'écran
  6  le script de la visite ne peut pas être lu, ou contient une erreur
  7  une photo, le texte d'une visite ou ce qui a été demandé ne peut pas être écrit
  8  le catalogue de traduction ne peut pas être chargé
  9  il n'y a pas d'écran pour afficher la fenêtre, ou pas de telle plateforme de Qt
 10  un signal a mis fin à une visite avant son terme
</translation>
    </message>
    <message>
        <source>Keep the telephone's state in DIR between starts; "none" keeps it in memory. Default: %1</source>
        <translation>Conserver l'état du téléphone dans DIR d'un démarrage à l'autre ; « none » le garde en mémoire. Par défaut : %1</translation>
    </message>
    <message>
        <source>Append the traces to FILE; "-" is standard output. Default: trace.log in the state directory; no trace where the state is in memory, and on a tour.</source>
        <translation>Ajouter les traces à FILE ; « - » est la sortie standard. Par défaut : trace.log dans le répertoire d'état ; pas de trace quand l'état est en mémoire, ni pendant une visite.</translation>
    </message>
    <message>
        <source>The telephone behind: %2, the path of a library that has one, or auto: the first that has a modem, else simulated. Default: simulated.</source>
        <translation>Le téléphone derrière : %2, le chemin d'une bibliothèque qui en contient un, ou auto : le premier qui a un modem, sinon simulated. Par défaut : simulated.</translation>
    </message>
    <message>
        <source>Keep the calls of the last DAYS days, 0 to 100000; older ones are deleted at the start and once a day, and stay in the totals. Default: all are kept.</source>
        <translation>Conserver les appels des DAYS derniers jours, de 0 à 100000 ; les plus anciens sont supprimés au démarrage puis une fois par jour, et restent dans les totaux. Par défaut : tous sont conservés.</translation>
    </message>
    <message>
        <source>The plug-in library. Default: libkavcallmeter.so.1</source>
        <translation>La bibliothèque du greffon. Par défaut : libkavcallmeter.so.1</translation>
    </message>
    <message>
        <source>Open this screen at once: %3.</source>
        <translation>Ouvrir cet écran tout de suite : %3.</translation>
    </message>
    <message>
        <source>Show this page of the panel: %4.</source>
        <translation>Afficher cette page du panneau : %4.</translation>
    </message>
    <message>
        <source>Show the phone's display alone, as large as the window and worked by touch: for a window that is a phone's.</source>
        <translation>Montrer l'écran du téléphone seul, aussi grand que la fenêtre et commandé au toucher : pour la fenêtre d'un téléphone.</translation>
    </message>
    <message>
        <source>Load the texts of the catalogue FILE (.qm).</source>
        <translation>Charger les textes du catalogue FILE (.qm).</translation>
    </message>
    <message>
        <source>Speak this language: %5. Default: the locale's; English on a tour and with --photo.</source>
        <translation>Parler cette langue : %5. Par défaut : celle des paramètres régionaux ; l'anglais pendant une visite et avec --photo.</translation>
    </message>
    <message>
        <source>The colours: light or dark. Default: the desktop's; light on a tour and with --photo.</source>
        <translation>Les couleurs : light (clair) ou dark (sombre). Par défaut : celles du bureau ; light pendant une visite et avec --photo.</translation>
    </message>
    <message>
        <source>Photograph the window as PNG to FILE and end.</source>
        <translation>Photographier la fenêtre en PNG dans FILE et quitter.</translation>
    </message>
    <message>
        <source>Play a tour without a display: put photographs of the screens into DIR and print their texts.</source>
        <translation>Jouer une visite sans écran : mettre des photos des écrans dans DIR et afficher leurs textes.</translation>
    </message>
    <message>
        <source>Play this script instead of the tour of all screens; only with --tour.</source>
        <translation>Jouer ce script au lieu de la visite de tous les écrans ; seulement avec --tour.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Affiche cette aide.</translation>
    </message>
    <message>
        <source>Option '%1' has an empty value.</source>
        <translation>L'option « %1 » a une valeur vide.</translation>
    </message>
    <message>
        <source>The name that option '%1' gives is not UTF-8.</source>
        <translation>Le nom que donne l'option « %1 » n'est pas en UTF-8.</translation>
    </message>
    <message>
        <source>Unknown screen '%1'; there is: %2.</source>
        <translation>Écran inconnu « %1 » ; il y a : %2.</translation>
    </message>
    <message>
        <source>Unknown page '%1'; there is: %2.</source>
        <translation>Page inconnue « %1 » ; il y a : %2.</translation>
    </message>
    <message>
        <source>Unknown language '%1'; there is: %2.</source>
        <translation>Langue inconnue « %1 » ; il y a : %2.</translation>
    </message>
    <message>
        <source>Unknown skin '%1'; there is: %2.</source>
        <translation>Thème « %1 » inconnu ; il y a : %2.</translation>
    </message>
    <message>
        <source>Unexpected argument '%1'.</source>
        <translation>Argument inattendu « %1 ».</translation>
    </message>
    <message>
        <source>Option 'script' needs option 'tour'.</source>
        <translation>L'option « script » nécessite l'option « tour ».</translation>
    </message>
    <message>
        <source>Option 'keep-calls' wants a number of days, 0 to %1.</source>
        <translation>L'option « keep-calls » demande un nombre de jours, de 0 à %1.</translation>
    </message>
    <message>
        <source>Option '%1' does not go with option 'tour'.</source>
        <translation>L'option « %1 » ne va pas avec l'option « tour ».</translation>
    </message>
    <message>
        <source>Option 'page' does not go with option 'display'.</source>
        <translation>L'option « page » ne va pas avec l'option « display ».</translation>
    </message>
    <message>
        <source>Option 'language' does not go with option 'translation'.</source>
        <translation>L'option « language » ne va pas avec l'option « translation ».</translation>
    </message>
</context>
</TS>
