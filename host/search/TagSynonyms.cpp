#include "TagSynonyms.h"

namespace Zenvora::Lumidex::Host {

const std::vector<TagSynonym>& TagSynonyms() {
  // clang-format off
  static const std::vector<TagSynonym> synonyms = {
      // Places.
      {"Beach,Beaches", "Strand,Strände", "Playa,Playas", "Plage,Plages", "Spiaggia,Spiagge", "ビーチ,砂浜,浜辺", "Strand,Stranden", "Praia,Praias", "Пляж,Пляжи"},
      {"Sea,Ocean", "Meer,Ozean", "Mar,Océano", "Mer,Océan", "Mare,Oceano", "海", "Zee,Oceaan", "Mar,Oceano", "Море,Океан"},
      {"Lake,Lakes", "See,Seen", "Lago,Lagos", "Lac,Lacs", "Lago,Laghi", "湖", "Meer,Meren", "Lago,Lagos", "Озеро,Озера"},
      {"River,Rivers", "Fluss,Flüsse", "Río,Ríos", "Rivière,Rivières,Fleuve", "Fiume,Fiumi", "川", "Rivier,Rivieren", "Rio,Rios", "Река,Реки"},
      {"Mountain,Mountains", "Berg,Berge", "Montaña,Montañas", "Montagne,Montagnes", "Montagna,Montagne", "山", "Berg,Bergen", "Montanha,Montanhas", "Гора,Горы"},
      {"Island,Islands", "Insel,Inseln", "Isla,Islas", "Île,Îles", "Isola,Isole", "島", "Eiland,Eilanden", "Ilha,Ilhas", "Остров,Острова"},
      {"City,Town,Cities,Towns", "Stadt,Städte", "Ciudad,Ciudades", "Ville,Villes", "Città", "街,都市", "Stad,Steden", "Cidade,Cidades", "Город,Города"},
      {"Village,Villages", "Dorf,Dörfer", "Pueblo,Pueblos", "Village,Villages", "Villaggio,Paese", "村", "Dorp,Dorpen", "Aldeia,Vila", "Деревня,Деревни"},
      {"Street,Streets", "Straße,Straßen", "Calle,Calles", "Rue,Rues", "Strada,Strade", "通り,道", "Straat,Straten", "Rua,Ruas", "Улица,Улицы"},
      {"Park,Parks", "Park,Parks", "Parque,Parques", "Parc,Parcs", "Parco,Parchi", "公園", "Park,Parken", "Parque,Parques", "Парк,Парки"},
      {"Garden,Gardens", "Garten,Gärten", "Jardín,Jardines", "Jardin,Jardins", "Giardino,Giardini", "庭", "Tuin,Tuinen", "Jardim,Jardins", "Сад,Сады"},
      {"Castle,Castles", "Schloss,Burg,Schlösser,Burgen", "Castillo,Castillos", "Château,Châteaux", "Castello,Castelli", "城", "Kasteel,Kastelen", "Castelo,Castelos", "Замок,Замки"},
      {"Church,Churches", "Kirche,Kirchen", "Iglesia,Iglesias", "Église,Églises", "Chiesa,Chiese", "教会", "Kerk,Kerken", "Igreja,Igrejas", "Церковь,Церкви"},
      {"Museum,Museums", "Museum,Museen", "Museo,Museos", "Musée,Musées", "Museo,Musei", "博物館,美術館", "Museum,Musea", "Museu,Museus", "Музей,Музеи"},
      {"Bridge,Bridges", "Brücke,Brücken", "Puente,Puentes", "Pont,Ponts", "Ponte,Ponti", "橋", "Brug,Bruggen", "Ponte,Pontes", "Мост,Мосты"},
      {"Harbour,Harbor,Port", "Hafen,Häfen", "Puerto,Puertos", "Port,Ports", "Porto,Porti", "港", "Haven,Havens", "Porto,Portos", "Порт,Гавань"},
      {"Zoo,Zoos", "Zoo,Tierpark", "Zoo,Zoológico", "Zoo,Zoos", "Zoo", "動物園", "Dierentuin,Zoo", "Zoológico,Zoo", "Зоопарк"},
      {"Waterfall,Waterfalls", "Wasserfall,Wasserfälle", "Cascada,Cascadas", "Cascade,Cascades", "Cascata,Cascate", "滝", "Waterval,Watervallen", "Cachoeira,Cascata", "Водопад,Водопады"},
      {"School,Schools", "Schule,Schulen", "Escuela,Colegio", "École,Écoles", "Scuola,Scuole", "学校", "School,Scholen", "Escola,Escolas", "Школа"},
      {"Architecture", "Architektur", "Arquitectura", "Architecture", "Architettura", "建築", "Architectuur", "Arquitetura", "Архитектура"},

      // Nature, weather and the time of the year.
      {"Nature", "Natur", "Naturaleza", "Nature", "Natura", "自然", "Natuur", "Natureza", "Природа"},
      {"Tree,Trees", "Baum,Bäume", "Árbol,Árboles", "Arbre,Arbres", "Albero,Alberi", "木", "Boom,Bomen", "Árvore,Árvores", "Дерево,Деревья"},
      {"Sunset,Sunsets", "Sonnenuntergang,Sonnenuntergänge", "Atardecer,Puesta de sol", "Coucher de soleil", "Tramonto,Tramonti", "夕日,日没", "Zonsondergang", "Pôr do sol", "Закат,Закаты"},
      {"Sunrise,Sunrises", "Sonnenaufgang,Sonnenaufgänge", "Amanecer,Salida del sol", "Lever de soleil", "Alba", "日の出", "Zonsopgang,Zonsopkomst", "Nascer do sol", "Рассвет,Восход"},
      {"Sun", "Sonne", "Sol", "Soleil", "Sole", "太陽", "Zon", "Sol", "Солнце"},
      {"Moon", "Mond", "Luna", "Lune", "Luna", "月", "Maan", "Lua", "Луна"},
      {"Stars,Star", "Sterne,Stern", "Estrellas,Estrella", "Étoiles,Étoile", "Stelle,Stella", "星,星空", "Sterren,Ster", "Estrelas,Estrela", "Звезды,Звезда"},
      {"Sky", "Himmel", "Cielo", "Ciel", "Cielo", "空", "Lucht,Hemel", "Céu", "Небо"},
      {"Clouds,Cloud", "Wolken,Wolke", "Nubes,Nube", "Nuages,Nuage", "Nuvole,Nuvola", "雲", "Wolken,Wolk", "Nuvens,Nuvem", "Облака,Облако"},
      {"Rain", "Regen", "Lluvia", "Pluie", "Pioggia", "雨", "Regen", "Chuva", "Дождь"},
      {"Snow", "Schnee", "Nieve", "Neige", "Neve", "雪", "Sneeuw", "Neve", "Снег"},
      {"Night", "Nacht", "Noche", "Nuit", "Notte", "夜", "Nacht", "Noite", "Ночь"},
      {"Spring,Springtime", "Frühling,Frühjahr", "Primavera", "Printemps", "Primavera", "春", "Lente,Voorjaar", "Primavera", "Весна"},
      {"Summer", "Sommer", "Verano", "Été", "Estate", "夏", "Zomer", "Verão", "Лето"},
      {"Autumn,Fall", "Herbst", "Otoño", "Automne", "Autunno", "秋", "Herfst,Najaar", "Outono", "Осень"},
      {"Winter", "Winter", "Invierno", "Hiver", "Inverno", "冬", "Winter", "Inverno", "Зима"},
      {"Animal,Animals", "Tier,Tiere", "Animal,Animales", "Animal,Animaux", "Animale,Animali", "動物", "Dier,Dieren", "Animal,Animais", "Животное,Животные"},
      {"Dog,Dogs", "Hund,Hunde", "Perro,Perros", "Chien,Chiens", "Cane,Cani", "犬", "Hond,Honden", "Cachorro,Cão,Cachorros,Cães", "Собака,Собаки"},
      {"Cat,Cats", "Katze,Katzen", "Gato,Gatos", "Chat,Chats", "Gatto,Gatti", "猫", "Kat,Katten", "Gato,Gatos", "Кошка,Кошки"},
      {"Bird,Birds", "Vogel,Vögel", "Pájaro,Pájaros,Ave,Aves", "Oiseau,Oiseaux", "Uccello,Uccelli", "鳥", "Vogel,Vogels", "Pássaro,Pássaros", "Птица,Птицы"},
      {"Horse,Horses", "Pferd,Pferde", "Caballo,Caballos", "Cheval,Chevaux", "Cavallo,Cavalli", "馬", "Paard,Paarden", "Cavalo,Cavalos", "Лошадь,Лошади"},
      {"Cow,Cows", "Kuh,Kühe", "Vaca,Vacas", "Vache,Vaches", "Mucca,Mucche", "牛", "Koe,Koeien", "Vaca,Vacas", "Корова,Коровы"},

      // Days to remember.
      {"Birthday,Birthdays", "Geburtstag,Geburtstage", "Cumpleaños", "Anniversaire,Anniversaires", "Compleanno,Compleanni", "誕生日", "Verjaardag,Verjaardagen", "Aniversário,Aniversários", "День рождения"},
      {"Wedding,Weddings", "Hochzeit,Hochzeiten", "Boda,Bodas", "Mariage,Mariages", "Matrimonio,Nozze", "結婚式", "Bruiloft,Trouwen", "Casamento,Casamentos", "Свадьба,Свадьбы"},
      {"Party,Parties,Celebration", "Feier,Fest,Party,Feiern", "Fiesta,Fiestas", "Fête,Fêtes", "Festa,Feste", "パーティー", "Feest,Feesten", "Festa,Festas", "Праздник,Вечеринка"},
      {"Vacation,Holidays,Holiday", "Urlaub,Ferien", "Vacaciones", "Vacances", "Vacanza,Vacanze,Ferie", "休暇,休日", "Vakantie,Vakanties", "Férias", "Отпуск,Каникулы"},
      {"Christmas", "Weihnachten", "Navidad", "Noël", "Natale", "クリスマス", "Kerstmis,Kerst", "Natal", "Рождество"},
      {"Easter", "Ostern", "Pascua", "Pâques", "Pasqua", "イースター", "Pasen", "Páscoa", "Пасха"},
      {"New Year", "Neujahr,Silvester", "Año Nuevo", "Nouvel An", "Capodanno", "正月,新年", "Nieuwjaar", "Ano Novo", "Новый год"},
      {"Carnival", "Karneval,Fasching", "Carnaval", "Carnaval", "Carnevale", "カーニバル", "Carnaval", "Carnaval", "Карнавал"},
      {"Concert,Concerts", "Konzert,Konzerte", "Concierto,Conciertos", "Concert,Concerts", "Concerto,Concerti", "コンサート", "Concert,Concerten", "Concerto,Concertos", "Концерт,Концерты"},

      // People, and what they do.
      {"Baby,Babies", "Baby,Babys", "Bebé,Bebés", "Bébé,Bébés", "Neonato,Bebè", "赤ちゃん", "Baby,Baby's", "Bebê,Bebês", "Младенец,Малыш"},
      {"Children,Child,Kids,Kid", "Kinder,Kind", "Niños,Niño,Niña", "Enfants,Enfant", "Bambini,Bambino,Bambina", "子供,子ども", "Kinderen,Kind", "Crianças,Criança", "Дети,Ребенок"},
      {"Friends,Friend", "Freunde,Freund,Freundin", "Amigos,Amigo,Amiga", "Amis,Ami,Amie", "Amici,Amico,Amica", "友達,友人", "Vrienden,Vriend,Vriendin", "Amigos,Amigo,Amiga", "Друзья,Друг,Подруга"},
      {"Mother,Mom,Mum", "Mutter,Mama", "Madre,Mamá", "Mère,Maman", "Madre,Mamma", "母,お母さん", "Moeder,Mama", "Mãe", "Мама,Мать"},
      {"Father,Dad", "Vater,Papa", "Padre,Papá", "Père,Papa", "Padre,Papà", "父,お父さん", "Vader,Papa", "Pai", "Папа,Отец"},
      {"Grandparents,Grandma,Grandpa", "Großeltern,Oma,Opa", "Abuelos,Abuela,Abuelo", "Grands-parents,Mamie,Papi", "Nonni,Nonna,Nonno", "祖父母", "Grootouders,Oma,Opa", "Avós,Avó,Avô", "Бабушка,Дедушка"},
      {"Portrait,Portraits", "Porträt,Porträts,Portrait", "Retrato,Retratos", "Portrait,Portraits", "Ritratto,Ritratti", "ポートレート,肖像", "Portret,Portretten", "Retrato,Retratos", "Портрет,Портреты"},
      {"Hiking,Hike", "Wandern,Wanderung", "Senderismo", "Randonnée,Randonnées", "Escursione,Escursionismo", "ハイキング,登山", "Wandelen,Wandeling", "Trilha,Caminhada", "Поход,Походы"},
      {"Camping", "Camping,Zelten", "Camping,Acampada", "Camping", "Campeggio", "キャンプ", "Kamperen,Camping", "Acampamento", "Кемпинг"},
      {"Skiing", "Skifahren", "Esquí", "Ski", "Sci", "スキー", "Skiën", "Esqui", "Катание на лыжах"},
      {"Swimming", "Schwimmen", "Natación", "Natation", "Nuoto", "水泳", "Zwemmen", "Natação", "Плавание"},
      {"Football,Soccer", "Fußball", "Fútbol", "Football,Foot", "Calcio", "サッカー", "Voetbal", "Futebol", "Футбол"},
      {"Music", "Musik", "Música", "Musique", "Musica", "音楽", "Muziek", "Música", "Музыка"},
      {"Dance,Dancing", "Tanz,Tanzen", "Baile,Danza", "Danse", "Danza,Ballo", "ダンス,踊り", "Dans,Dansen", "Dança", "Танец,Танцы"},
      {"Bicycle,Bike", "Fahrrad,Fahrräder,Rad", "Bicicleta,Bici", "Vélo,Vélos", "Bicicletta,Bici", "自転車", "Fiets,Fietsen", "Bicicleta,Bike", "Велосипед"},
      {"Train,Trains", "Zug,Züge,Eisenbahn", "Tren,Trenes", "Train,Trains", "Treno,Treni", "電車,列車", "Trein,Treinen", "Trem,Trens", "Поезд,Поезда"},
      {"Ship,Boat", "Schiff,Boot,Schiffe", "Barco,Barcos", "Bateau,Bateaux", "Nave,Barca,Navi", "船", "Schip,Boot,Schepen", "Barco,Navio", "Корабль,Лодка"},
      {"Screenshot,Screenshots", "Bildschirmfoto,Bildschirmfotos", "Captura de pantalla", "Capture d'écran", "Schermata", "スクリーンショット", "Schermafbeelding,Schermafdruk", "Captura de tela", "Снимок экрана"},
      {"Document,Documents", "Dokument,Dokumente", "Documento,Documentos", "Document,Documents", "Documento,Documenti", "書類,文書", "Document,Documenten", "Documento,Documentos", "Документ,Документы"},
      {"Receipt,Receipts,Invoice", "Quittung,Rechnung,Beleg", "Recibo,Factura", "Reçu,Facture", "Ricevuta,Fattura", "領収書,レシート", "Bonnetje,Kassabon,Factuur", "Recibo,Nota fiscal", "Чек,Квитанция"},
  };
  // clang-format on
  return synonyms;
}

}  // namespace Zenvora::Lumidex::Host
