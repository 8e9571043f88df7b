const char* const kQuery = "SELECT * FROM Recepty";
